// The drop-down list of a combo box brought in line with its struct: the entries (replaced only
// when they differ, so an open list is not rebuilt under the operator) and the picked row.
#pragma once

#include <QComboBox>

#include "platform/controls.h"

namespace tesk {

// Call with the box's signals blocked: the view's own change is no operator's pick.
void RenderComboItems(QComboBox* w, const ComboBox& d);

}  // namespace tesk
