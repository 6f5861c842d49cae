// The list editor's widgets. The length list has no scroll bar of its own: it shows the rows
// that the entry list shows, so each length stands beside its entry.
#include "qt/views/edit_tx_data_view.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "qt/qt_text.h"
#include "qt/views/combo_items.h"

namespace tesk {

EditTXDataView::EditTXDataView(EditTXData& editor, QWidget* parent)
    : QDialog(parent), m_editor(editor), m_data(editor.window()) {
  setObjectName(QString::fromLatin1(EditTXData::kWindowName));
  setWindowModality(Qt::WindowModal);
  auto* layout = new QVBoxLayout(this);
  auto* body = new QHBoxLayout;
  auto* lists = new QGridLayout;
  lists->setHorizontalSpacing(0);
  auto* entriesTitle = new QLabel(tr("Entries"), this);
  auto* lengthsTitle = new QLabel(tr("Length"), this);
  lengthsTitle->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  m_entries = new QListWidget(this);
  m_entries->setObjectName(QStringLiteral("lstTXData"));
  entriesTitle->setBuddy(m_entries);
  m_lengths = new QListWidget(this);
  m_lengths->setObjectName(QStringLiteral("lstLength"));
  m_lengths->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_lengths->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_lengths->setFocusPolicy(Qt::NoFocus);
  m_lengths->setFixedWidth(m_lengths->fontMetrics().horizontalAdvance(QStringLiteral("Length")) +
                           24);
  for (QListWidget* list : {m_entries, m_lengths}) {
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    list->setUniformItemSizes(true);
    connect(list->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int top) {
      if (!m_rendering) m_editor.List_Scroll(top);
    });
    connect(list, &QListWidget::currentRowChanged, this, [this](int row) {
      if (!m_rendering) m_editor.List_Click(row);
    });
  }
  lists->addWidget(entriesTitle, 0, 0);
  lists->addWidget(lengthsTitle, 0, 1);
  lists->addWidget(m_entries, 1, 0);
  lists->addWidget(m_lengths, 1, 1);
  body->addLayout(lists, 1);
  auto* column = new QVBoxLayout;
  column->addSpacing(entriesTitle->sizeHint().height());
  column->addWidget(addButton(m_data.cmdAdd, "cmdAdd", [this] { m_editor.cmdAdd_Click(); }));
  column->addWidget(addButton(m_data.cmdEdit, "cmdEdit", [this] { m_editor.cmdEdit_Click(); }));
  column->addWidget(
      addButton(m_data.cmdRemove, "cmdRemove", [this] { m_editor.cmdRemove_Click(); }));
  column->addWidget(
      addButton(m_data.cmdRemoveAll, "cmdRemoveAll", [this] { m_editor.cmdRemoveAll_Click(); }));
  column->addStretch(1);
  body->addLayout(column);
  layout->addLayout(body, 1);
  auto* bottom = new QHBoxLayout;
  bottom->addStretch(1);
  QPushButton* ok = addButton(m_data.cmdOK, "cmdOK", [this] { m_editor.cmdOK_Click(); });
  ok->setDefault(true);
  bottom->addWidget(ok);
  bottom->addWidget(
      addButton(m_data.cmdCancel, "cmdCancel", [this] { m_editor.cmdCancel_Click(); }));
  layout->addLayout(bottom);
  resize(600, 400);
  refresh();
}

EditTXDataView::~EditTXDataView() = default;

QPushButton* EditTXDataView::addButton(Button& data, const char* name,
                                       std::function<void()> handler) {
  auto* w = new QPushButton(this);
  w->setObjectName(QString::fromLatin1(name));
  w->setAutoDefault(false);
  connect(w, &QPushButton::clicked, this, [handler]() { handler(); });
  m_buttons.emplace_back(&data, w);
  return w;
}

void EditTXDataView::refresh() {
  m_rendering = true;
  setWindowTitle(ToQString(m_data.form.caption));
  RenderListItems(m_entries, m_data.lstTXData);
  RenderListItems(m_lengths, m_data.lstLength);
  for (int i = 0; i < m_lengths->count(); ++i)
    m_lengths->item(i)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  for (QListWidget* list : {m_entries, m_lengths}) {
    if (list->verticalScrollBar()->value() != m_data.topIndex)
      list->verticalScrollBar()->setValue(static_cast<int>(m_data.topIndex));
  }
  for (const auto& [data, widget] : m_buttons) {
    widget->setText(ToQString(data->caption));
    widget->setToolTip(ToQString(data->toolTip));
    widget->setVisible(data->visible);
    widget->setEnabled(data->enabled);
  }
  m_rendering = false;
}

void EditTXDataView::closeEvent(QCloseEvent* event) {
  // The editor decides: closing the window is its Cancel, which hides this view.
  event->ignore();
  if (m_data.form.visible) m_editor.cmdCancel_Click();
}

void EditTXDataView::reject() {
  if (m_data.form.visible) m_editor.cmdCancel_Click();
}

}  // namespace tesk
