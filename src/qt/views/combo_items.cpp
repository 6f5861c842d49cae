// Shared by every window that renders a ComboBox or a ListBox.
#include "qt/views/combo_items.h"

#include <QStringList>

#include "qt/qt_text.h"

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

bool RenderListItems(QListWidget* w, const ListBox& d) {
  QStringList items;
  for (const std::string& s : d.list)
    items << ToQString(s);
  bool same = w->count() == items.size();
  for (int i = 0; same && i < items.size(); ++i)
    same = w->item(i)->text() == items[i];
  if (!same) {
    w->clear();
    w->addItems(items);
  }
  const int row = d.listIndex >= 0 && d.listIndex < w->count() ? static_cast<int>(d.listIndex) : -1;
  if (w->currentRow() != row) w->setCurrentRow(row);
  return !same;
}

}  // namespace tesk
