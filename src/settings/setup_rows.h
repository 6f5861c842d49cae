// The building blocks of the Setup window's control table: the rules shared by many rows (a
// flag, a row number, a text) and the row makers. Only the table's own files include this.
#pragma once

#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "settings/setup_controls.h"

namespace tesk::setup_rows {

using Load = void (*)(SetupWindow&, const StationConfig&);
using Store = void (*)(const SetupWindow&, StationConfig&);

// The rules that are not a plain mapping: their rows wait for their own step of Apply.
constexpr const char* kSeeAlgorithms = "see Algorithms";
constexpr const char* kSeeBelow = "see below";
constexpr const char* kChecked = "checked";

template <typename Field>
Field Clamp16(double value) {
  if (value > 32767) return static_cast<Field>(32767);
  if (value < -32768) return static_cast<Field>(-32768);
  return static_cast<Field>(value);
}

// A check box of a flag: checked stores `On` (-1 or 1), unchecked 0.
template <CheckBox SetupWindow::*C, int16_t StationConfig::*F>
void LoadFlag(SetupWindow& w, const StationConfig& c) {
  (w.*C).value = (c.*F) != 0 ? 1 : 0;
}
template <CheckBox SetupWindow::*C, int16_t StationConfig::*F, int On>
void StoreFlag(const SetupWindow& w, StationConfig& c) {
  c.*F = static_cast<int16_t>((w.*C).checked() ? On : 0);
}

// An option row of a number: the row's index. A stored -1 shows as row 1.
template <OptionRow SetupWindow::*C, auto F>
void LoadRow(SetupWindow& w, const StationConfig& c) {
  const auto value = c.*F;
  (w.*C).choose(value == -1 ? 1 : static_cast<int>(value));
}
template <OptionRow SetupWindow::*C, auto F>
void StoreRow(const SetupWindow& w, StationConfig& c) {
  using Field = std::remove_reference_t<decltype(c.*F)>;
  const int row = (w.*C).chosen();
  if (row >= 0) c.*F = static_cast<Field>(row);
}

template <TextBox SetupWindow::*C, std::string StationConfig::*F>
void LoadText(SetupWindow& w, const StationConfig& c) {
  (w.*C).text = c.*F;
}
template <TextBox SetupWindow::*C, std::string StationConfig::*F>
void StoreText(const SetupWindow& w, StationConfig& c) {
  c.*F = (w.*C).text;
}

inline SetupControl Row(std::string name, SetupPage page, ScriptKind kind, std::string key,
                        std::string rule, SetupMember member, Load load, Store store,
                        std::string caption = {}) {
  SetupControl r;
  r.name = std::move(name);
  r.page = page;
  r.kind = kind;
  r.key = std::move(key);
  r.rule = std::move(rule);
  r.member = member;
  r.load = load;
  r.store = store;
  r.caption = std::move(caption);
  return r;
}

template <CheckBox SetupWindow::*C, int16_t StationConfig::*F, int On = -1>
SetupControl Flag(std::string name, SetupPage page, std::string key, std::string caption) {
  return Row(std::move(name), page, ScriptKind::Check, std::move(key),
             On == -1 ? "-1 or 0" : "1 or 0", C, &LoadFlag<C, F>, &StoreFlag<C, F, On>,
             std::move(caption));
}

template <OptionRow SetupWindow::*C, auto F>
SetupControl Options(std::string name, SetupPage page, std::string key, std::string rule,
                     std::vector<std::string> captions, std::string title = {}) {
  SetupControl r = Row(std::move(name), page, ScriptKind::Option, std::move(key), std::move(rule),
                       C, &LoadRow<C, F>, &StoreRow<C, F>, std::move(title));
  r.rowCaptions = std::move(captions);
  return r;
}

template <TextBox SetupWindow::*C, std::string StationConfig::*F>
SetupControl Text(std::string name, SetupPage page, std::string key, std::string caption,
                  std::string rule = "text") {
  return Row(std::move(name), page, ScriptKind::Text, std::move(key), std::move(rule), C,
             &LoadText<C, F>, &StoreText<C, F>, std::move(caption));
}

inline SetupControl Push(std::string name, SetupPage page, SetupMember member, int index,
                         std::string caption, std::string key = {},
                         std::string rule = "acts at once") {
  SetupControl r = Row(std::move(name), page, ScriptKind::Button, std::move(key), std::move(rule),
                       member, nullptr, nullptr, std::move(caption));
  r.index = index;
  return r;
}

}  // namespace tesk::setup_rows
