// The icons the position setup offers: each row's symbol table and symbol code characters and
// the name the window shows. The order is the order of the window's icon row, and the pictures
// are drawn from this table too, so the two can never disagree.
#pragma once

#include <array>
#include <string_view>

namespace tesk {

struct AprsIconRow {
  std::string_view code;  // table character, then symbol character; "" for the user's own icon
  std::string_view name;
};

inline constexpr int kAprsIconRows = 21;
// The last row stands for the user's own icon; the rows before it are the ones OK looks through.
inline constexpr int kAprsUserIconRow = 20;

// "Shutlle" is the name operators have always seen in this list; kept as it is.
inline constexpr std::array<AprsIconRow, kAprsIconRows> kAprsIcons{{
    {"\\S", "Satellite"},
    {"/S", "Shutlle"},
    {"/-", "Home"},
    {"\\-", "Home HF"},
    {"/y", "Home Yagi"},
    {"/>", "Car"},
    {"/K", "School"},
    {"\\!", "Emergency"},
    {"/+", "Red Cross"},
    {"/`", "Dish antenna"},
    {"/_", "Weather WX station"},
    {"/W", "WX Service"},
    {"\\d", "DX Spot"},
    {"/Y", "Yacht /MM"},
    {"/O", "Balloon"},
    {"/#", "Digipeater"},
    {"/n", "Node"},
    {"/&", "Gateway"},
    {"/m", "Repeater"},
    {"/r", "Antenna Tower"},
    {"", "User defined icon"},
}};

}  // namespace tesk
