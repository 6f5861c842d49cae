// Shared by every window that renders a ComboBox.
#include "platform/qt/views/combo_items.h"

#include <QStringList>

#include "platform/qt/qt_text.h"

namespace tesk {

void RenderComboItems(QComboBox* w, const ComboBox& d) {
  QStringList items;
  for (const std::string& s : d.list)
    items << ToQString(s);
  QStringList shown;
  for (int i = 0; i < w->count(); ++i)
    shown << w->itemText(i);
  if (items != shown) {
    w->clear();
    w->addItems(items);
  }
  const int index =
      d.listIndex >= 0 && d.listIndex < w->count() ? static_cast<int>(d.listIndex) : -1;
  if (w->currentIndex() != index) w->setCurrentIndex(index);
}

}  // namespace tesk
