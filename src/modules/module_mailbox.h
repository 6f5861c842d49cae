// The status mailbox for add-on modules: every post of the program's state goes through
// TESKRegistryMod with an operation number. The mailbox itself arrives with the module
// interface; until then the calls stand where the flows make them and do nothing.
#pragma once

#include <string>

namespace tesk {

class ModuleMailbox {
 public:
  // text by reference: some operations read a value back into it.
  void TESKRegistryMod(std::string& text, int operation);
  int calls() const { return m_calls; }

 private:
  int m_calls = 0;
};

}  // namespace tesk
