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

bool CommandTable::add(CommandSpec desc) {
  const CommandKey key = desc.key;
  desc.console = Lower(desc.console);
  const auto it = m_entries.find(key);
  if (it == m_entries.end()) {
    m_entries.emplace(key, std::move(desc));
    return true;
  }
  // A command registered before it was built is filled by its subsystem, once.
  if (it->second.built || !desc.built) return false;
  if (desc.item == nullptr) desc.item = it->second.item;
  if (desc.caption.empty()) desc.caption = it->second.caption;
  it->second = std::move(desc);
  return true;
}

bool CommandTable::addUnbuilt(CommandKey key, std::string caption, MenuItem* item) {
  CommandSpec desc;
  desc.key = key;
  desc.caption = std::move(caption);
  desc.built = false;
  desc.item = item;
  return add(std::move(desc));
}

bool CommandTable::addClick(CommandKey key, std::function<void()> run,
                            std::function<bool()> enabled) {
  CommandSpec desc;
  desc.key = key;
  desc.handler = [run = std::move(run)](const std::string&) { run(); };
  desc.enabled = std::move(enabled);
  return add(std::move(desc));
}

bool CommandTable::addRow(Command command, MenuArray& rows, int index, std::string caption,
                          std::function<void(int index)> handler, std::function<bool()> also) {
  MenuItem& item = rows[index];
  CommandSpec desc;
  desc.key = {command, index};
  desc.caption = std::move(caption);
  desc.handler = [handler = std::move(handler), index](const std::string&) { handler(index); };
  desc.enabled = [&item, also = std::move(also)] {
    return item.enabled && item.visible && (!also || also());
  };
  desc.item = &item;
  return add(std::move(desc));
}

bool CommandTable::has(CommandKey key) const {
  return m_entries.count(key) != 0;
}

const CommandSpec* CommandTable::find(CommandKey key) const {
  const auto it = m_entries.find(key);
  return it == m_entries.end() ? nullptr : &it->second;
}

bool CommandTable::enabled(CommandKey key) const {
  const CommandSpec* desc = find(key);
  if (desc == nullptr || !desc->built || !desc->handler) return false;
  return !desc->enabled || desc->enabled();
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
  for (const auto& [key, desc] : m_entries) {
    if (desc.console == wanted) return &desc;
  }
  return nullptr;
}

std::vector<std::string> CommandTable::consoleUsages() const {
  std::vector<std::pair<std::string, std::string>> named;
  for (const auto& [key, desc] : m_entries) {
    if (!desc.console.empty()) named.emplace_back(desc.console, desc.usage);
  }
  std::sort(named.begin(), named.end());
  std::vector<std::string> usages;
  for (const auto& [name, usage] : named)
    usages.push_back(usage);
  return usages;
}

std::vector<CommandKey> CommandTable::keys() const {
  std::vector<CommandKey> all;
  for (const auto& [key, desc] : m_entries)
    all.push_back(key);
  return all;
}

}  // namespace tesk
