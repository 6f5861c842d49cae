// AX.25 frames as the engines pass them in raw form (kind "K"): the address field, control,
// PID and info, without flags or checksum. Direct mode reads the has-been-repeated bit of each
// digipeater from here, because some engines leave the "*" out of their monitor texts, and
// writes UI frames this way for engines that ignore the "V" request.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tesk {

inline constexpr std::size_t kAx25MaxDigipeaters = 8;

struct Ax25Address {
  std::string call;       // "CALL-SSID"; SSID 0 is written as the bare call
  bool repeated = false;  // H bit: this digipeater has repeated the frame
};

struct Ax25Frame {
  Ax25Address destination, source;
  std::vector<Ax25Address> digipeaters;
  uint8_t control = 0x03;
  std::optional<uint8_t> pid;  // only I and UI frames carry one
  std::string info;

  bool isUi() const { return (control & 0xEF) == 0x03; }
};

// Decodes address field to info. Nothing when the address field is cut short, holds fewer than
// two or more than ten addresses, or no control byte follows it.
std::optional<Ax25Frame> DecodeAx25(std::span<const uint8_t> bytes);

// A UI command frame with the H bits of all digipeaters clear. Calls are upper-cased; a call
// part longer than 6 characters is cut, an SSID outside 0..15 counts as 0.
std::vector<uint8_t> EncodeAx25Ui(const std::string& destination, const std::string& source,
                                  const std::vector<std::string>& digipeaters, uint8_t pid,
                                  const std::string& info);

}  // namespace tesk
