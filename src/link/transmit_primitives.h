// The two transmit primitives and the echo of own frames. The primitives arrive with the first
// transmission; the echo routine already stands where the LAN sender calls it.
#pragma once

#include <string>

namespace tesk {

class TransmitPrimitives {
 public:
  // Shows an own frame in the Monitor right after it was sent ([Emulate_TXFrames_On_SlowNetPC]).
  void EchoOwnFrame(int port, const std::string& from, const std::string& to,
                    const std::string& data, const std::string& via);
  int echoes() const { return m_echoes; }

 private:
  int m_echoes = 0;
};

}  // namespace tesk
