// The command table's lookups and its one rule: a command runs only when it is there, built and
// enabled.
#include "state/command_table.h"

#include <algorithm>
#include <cctype>

namespace tesk {

namespace {

std::string Lower(std::string s) {
  std::transform(s.begin(), s.end(), s.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return s;
}

}  // namespace

bool CommandTable::add(CommandSpec spec) {
  const CommandKey key = spec.key;
  spec.console = Lower(spec.console);
  const auto it = m_entries.find(key);
  if (it == m_entries.end()) {
    m_entries.emplace(key, std::move(spec));
    return true;
  }
  // A command registered before it was built is filled by its subsystem, once.
  if (it->second.built || !spec.built) return false;
  if (spec.item == nullptr) spec.item = it->second.item;
  if (spec.caption.empty()) spec.caption = it->second.caption;
  it->second = std::move(spec);
  return true;
}

bool CommandTable::addUnbuilt(CommandKey key, std::string caption, MenuItem* item) {
  CommandSpec spec;
  spec.key = key;
  spec.caption = std::move(caption);
  spec.built = false;
  spec.item = item;
  return add(std::move(spec));
}

bool CommandTable::addRow(Command command, MenuArray& rows, int index, std::string caption,
                          std::function<void(int index)> handler, std::function<bool()> also) {
  MenuItem& item = rows[index];
  CommandSpec spec;
  spec.key = {command, index};
  spec.caption = std::move(caption);
  spec.handler = [handler = std::move(handler), index](const std::string&) { handler(index); };
  spec.enabled = [&item, also = std::move(also)] {
    return item.enabled && item.visible && (!also || also());
  };
  spec.item = &item;
  return add(std::move(spec));
}

bool CommandTable::has(CommandKey key) const {
  return m_entries.count(key) != 0;
}

const CommandSpec* CommandTable::find(CommandKey key) const {
  const auto it = m_entries.find(key);
  return it == m_entries.end() ? nullptr : &it->second;
}

bool CommandTable::enabled(CommandKey key) const {
  const CommandSpec* spec = find(key);
  if (spec == nullptr || !spec->built || !spec->handler) return false;
  return !spec->enabled || spec->enabled();
}

bool CommandTable::run(CommandKey key, const std::string& argument) {
  if (!enabled(key)) return false;
  // A copy: a handler may register or replace commands while it runs.
  const auto handler = m_entries.at(key).handler;
  handler(argument);
  return true;
}

const CommandSpec* CommandTable::findConsole(const std::string& name) const {
  const std::string wanted = Lower(name);
  if (wanted.empty()) return nullptr;
  for (const auto& [key, spec] : m_entries) {
    if (spec.console == wanted) return &spec;
  }
  return nullptr;
}

std::vector<std::string> CommandTable::consoleUsages() const {
  std::vector<std::pair<std::string, std::string>> named;
  for (const auto& [key, spec] : m_entries) {
    if (!spec.console.empty()) named.emplace_back(spec.console, spec.usage);
  }
  std::sort(named.begin(), named.end());
  std::vector<std::string> usages;
  for (const auto& [name, usage] : named)
    usages.push_back(usage);
  return usages;
}

std::vector<CommandKey> CommandTable::keys() const {
  std::vector<CommandKey> all;
  for (const auto& [key, spec] : m_entries)
    all.push_back(key);
  return all;
}

}  // namespace tesk
