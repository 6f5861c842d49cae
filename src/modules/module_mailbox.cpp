// The status mailbox; empty until the module interface is built.
#include "modules/module_mailbox.h"

namespace tesk {

void ModuleMailbox::TESKRegistryMod(std::string& /*text*/, int /*operation*/) {
  ++m_calls;
}

}  // namespace tesk
