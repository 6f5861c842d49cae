// Fuzz target for the AGWPE frame codec: arbitrary socket reads through the LAN decoder, with
// the slot kept from call to call as the link keeps it, plus the stream reader and the builders
// fed with texts cut from the same input. Any out-of-bounds access is a finding.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "link/agw_frame.h"

namespace {

// Cuts the input into texts at each 0xFF byte.
std::vector<std::string> Pieces(const uint8_t* data, size_t size, size_t count) {
  std::vector<std::string> pieces(count);
  size_t k = 0;
  for (size_t i = 0; i < size; ++i) {
    if (data[i] == 0xFF && k + 1 < count) {
      ++k;
    } else {
      pieces[k] += static_cast<char>(data[i]);
    }
  }
  return pieces;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  // One slot for the whole run: short reads rely on what earlier reads left behind.
  static tesk::FrameSlot slot;
  static std::string enginePortList;
  static std::string linkStatus;
  const std::vector<uint8_t> read(data, data + size);
  tesk::AGWWinsockGetDataLAN(read, slot, enginePortList, linkStatus);
  if (slot.FrameData.empty() || slot.FrameData.back() != '\0') __builtin_trap();

  const tesk::AgwTakeResult taken = tesk::takeAgwFrame(read, 4096);
  if (taken.status == tesk::AgwTake::Frame) {
    if (taken.frame.encode().size() != taken.consumed) __builtin_trap();
  }

  const std::vector<std::string> p = Pieces(data, size, 6);
  const int port = p[0].empty() ? 0 : static_cast<signed char>(p[0][0]);
  const std::vector<uint8_t> ui = tesk::BuildControlUI(port, p[1], p[2], p[3], p[4], p[5]);
  if (ui.size() < 37 || ui.size() > 256) __builtin_trap();
  if (tesk::BuildReqRegInfo(port, p[1], p[2]).size() != 36) __builtin_trap();
  if (tesk::BuildPassword(port, p[1], p[2], p[3]).size() != 546) __builtin_trap();
  for (int i = -1; i <= 11; ++i)
    tesk::SplitIt(p[1], p[5], i);
  tesk::GetKind(p[1]);
  return 0;
}
