// The drop-down list of a combo box, and a list box, brought in line with their structs: the
// entries (replaced only when they differ, so an open list is not rebuilt under the operator)
// and the picked row.
#pragma once

#include <QComboBox>
#include <QListWidget>

#include "platform/controls.h"

namespace tesk {

// Call with the box's signals blocked: the view's own change is no operator's pick.
void RenderComboItems(QComboBox* w, const ComboBox& d);
// The same for a list box; true when its entries were replaced.
bool RenderListItems(QListWidget* w, const ListBox& d);

}  // namespace tesk
