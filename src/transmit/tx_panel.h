// The six transmit fields with their histories and the length rule. Built later; the load pass
// already applies the coherent colours through it.
#pragma once

namespace tesk {

class TxPanel {
 public:
  // Gives the transmit boxes their fixed matching back colours when [TXBoxCoherentColors] is on.
  void SetCoherentTXBoxColors() {}
};

}  // namespace tesk
