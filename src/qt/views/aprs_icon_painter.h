// The pictures of the position setup's icons, made here and taken from no other program: each
// symbol is a plain shape in its own colour with the symbol's code character inside and its
// table character in the corner, so an operator can read the two characters off the picture.
#pragma once

#include <QPixmap>
#include <string_view>

namespace tesk {

// The picture of the icon with `code` (table character, then symbol character; "" for the
// user's own icon), `size` pixels square; `marked` frames it as the one picked.
QPixmap AprsIconPixmap(std::string_view code, int size, bool marked);

}  // namespace tesk
