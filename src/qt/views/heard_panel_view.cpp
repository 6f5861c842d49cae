// The stations-heard widgets. The list's own events (a double click, the right press and
// release, a drag) go to the MHeard list's handlers; its menus and buttons run commands.
#include "qt/views/heard_panel_view.h"

#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

#include "heard/mheard_list.h"
#include "qt/qt_text.h"
#include "qt/views/combo_items.h"

namespace tesk {

namespace {

// The list box of the stations heard: a drag offers the selected row's call as text.
class HeardListWidget : public QListWidget {
 public:
  using QListWidget::QListWidget;
  std::function<QString()> dragText;

 protected:
  QMimeData* mimeData(const QList<QListWidgetItem*>& items) const override {
    auto* mime = new QMimeData;
    const QString text = dragText ? dragText() : QString();
    mime->setText(text.isEmpty() && !items.isEmpty() ? items.first()->text().left(10).trimmed()
                                                     : text);
    return mime;
  }
};

QLabel* MakeLamp(QWidget* parent, const char* name, const QString& tip) {
  auto* lamp = new QLabel(parent);
  lamp->setObjectName(QString::fromLatin1(name));
  lamp->setFixedSize(14, 14);
  lamp->setToolTip(tip);
  return lamp;
}

}  // namespace

QWidget* HeardPanelView::buildDigiRow(QWidget* parent) {
  auto* strip = new QWidget(parent);
  auto* row = new QHBoxLayout(strip);
  row->setContentsMargins(0, 0, 0, 0);
  m_lamps[0] = MakeLamp(strip, "imgTXRXlight0", QObject::tr("Receive"));
  m_lamps[1] = MakeLamp(strip, "imgTXRXlight1", QObject::tr("Transmit"));
  row->addWidget(m_lamps[0]);
  row->addWidget(m_lamps[1]);
  row->addSpacing(6);
  m_digiLogo = new QLabel(QObject::tr("DIGI"), strip);
  m_digiLogo->setObjectName(QStringLiteral("imgLogoDigi"));
  m_digiLogo->setToolTip(QObject::tr("Your frame came back digipeated"));
  m_digiLogo->setStyleSheet(QStringLiteral(
      "QLabel#imgLogoDigi { background-color: #ff8040; color: white; font-weight: bold;"
      " border-radius: 4px; padding: 1px 8px; }"));
  QSizePolicy keep = m_digiLogo->sizePolicy();
  keep.setRetainSizeWhenHidden(true);  // the row doesn't jump while it flashes
  m_digiLogo->setSizePolicy(keep);
  m_digiLogo->setMinimumWidth(m_digiLogo->sizeHint().width());
  row->addWidget(m_digiLogo);
  row->addStretch(1);
  auto* total = new PressLabel(strip);
  total->setObjectName(QStringLiteral("LblDigipeatedTot"));
  total->setAlignment(Qt::AlignCenter);
  total->setContentsMargins(8, 1, 8, 1);
  total->setFrameShape(QFrame::StyledPanel);
  QFont big = total->font();
  big.setBold(true);
  big.setPointSizeF(big.pointSizeF() * 1.3);
  total->setFont(big);
  total->setMinimumWidth(total->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 16);
  total->onPress = [this](QPoint at) {
    if (m_kit.commands().enabled({Command::mnuShowDigiStatuss})) m_digiMenu->popup(at);
  };
  m_kit.paintLabel(m_kit.data().LblDigipeatedTot, total);
  row->addWidget(total);
  return strip;
}

QWidget* HeardPanelView::build(QWidget* parent) {
  MainWindow& d = m_kit.data();
  auto* box = new QGroupBox(QObject::tr("MHeard"), parent);
  box->setObjectName(QStringLiteral("FrameMHeard"));
  auto* col = new QVBoxLayout(box);
  col->addWidget(buildDigiRow(box));
  auto* head = new QHBoxLayout;
  auto* call = new QLabel(box);
  call->setObjectName(QStringLiteral("lblMHeardCall"));
  m_kit.paintLabel(d.lblMHeardCall, call);
  head->addWidget(call);
  head->addStretch(1);
  auto* teller = new QLabel(box);
  teller->setObjectName(QStringLiteral("StationTeller"));
  QFont bold = teller->font();
  bold.setBold(true);
  teller->setFont(bold);
  m_kit.paintLabel(d.StationTeller, teller);
  auto* tellerCaption = new QLabel(QObject::tr("Stations:"), box);
  tellerCaption->setEnabled(false);
  head->addWidget(tellerCaption);
  head->addWidget(teller);
  col->addLayout(head);
  auto* list = new HeardListWidget(box);
  list->setObjectName(QStringLiteral("LstMHeardList"));
  list->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  list->setDragEnabled(true);
  list->setDragDropMode(QAbstractItemView::DragOnly);
  list->setContextMenuPolicy(Qt::CustomContextMenu);
  MHeardList* heard = m_kit.handlers().heardList;
  list->dragText = [heard]() { return heard ? ToQString(heard->DragText()) : QString(); };
  m_list = list;
  QObject::connect(list, &QListWidget::currentRowChanged, box,
                   [this](int r) { m_kit.data().LstMHeardList.listIndex = r; });
  QObject::connect(list, &QListWidget::itemDoubleClicked, box, [this, heard](QListWidgetItem*) {
    if (heard == nullptr) return;
    heard->LstMHeardList_DblClick();
    m_kit.refresh();
    m_kit.followTxFocus();
  });
  QObject::connect(list, &QListWidget::customContextMenuRequested, box,
                   [this](const QPoint& p) { popup(p); });
  col->addWidget(list, 1);
  auto* erase = new QLabel(box);
  erase->setObjectName(QStringLiteral("Lblmheardautoerase"));
  m_kit.paintLabel(d.Lblmheardautoerase, erase);
  col->addWidget(erase);
  auto* options = new QVBoxLayout;
  m_optSort = new QRadioButton(box);
  m_optSort->setObjectName(QStringLiteral("OptSort"));
  m_optUnsort = new QRadioButton(box);
  m_optUnsort->setObjectName(QStringLiteral("OptUnsort"));
  QObject::connect(m_optSort, &QRadioButton::clicked, box,
                   [this]() { m_kit.run({Command::OptSort}); });
  QObject::connect(m_optUnsort, &QRadioButton::clicked, box,
                   [this]() { m_kit.run({Command::OptUnsort}); });
  options->addWidget(m_optSort);
  options->addWidget(m_optUnsort);
  col->addLayout(options);
  auto* buttons = new QHBoxLayout;
  // Alt+D belongs to Send.
  buttons->addWidget(m_kit.addButton(box, d.cmdViewMHeardList, Command::cmdViewMHeardList,
                                     "cmdViewMHeardList", QObject::tr("Deta&ils...")));
  buttons->addWidget(m_kit.addButton(box, d.cmdMheardSave, Command::cmdMheardSave, "cmdMheardSave",
                                     QObject::tr("Sa&ve...")));
  buttons->addWidget(m_kit.addButton(box, d.cmdMHeardClear, Command::cmdMHeardClear,
                                     "cmdMHeardClear", QObject::tr("C&lear")));
  col->addLayout(buttons);
  buildMenus(box);
  // Room for a whole row: the call in 21 columns and the first-heard time.
  list->setMinimumWidth(list->fontMetrics().horizontalAdvance(QString(42, QLatin1Char('M'))));
  return box;
}

void HeardPanelView::buildMenus(QWidget* parent) {
  m_heardMenu = new QMenu(parent);
  m_heardMenu->setObjectName(QStringLiteral("mnuMHeard"));
  m_digiMenu = new QMenu(parent);
  m_digiMenu->setObjectName(QStringLiteral("mnuShowDigiStatus"));
  m_kit.addAction(m_digiMenu, {Command::mnuShowDigiStatuss})
      ->setObjectName(QStringLiteral("mnuShowDigiStatuss"));
  QMenu* paste = m_heardMenu->addMenu(QObject::tr("Paste Call To"));
  m_kit.addActions(paste, Command::menumheardoptionspaste, {10, 20, 30});
  m_kit.addActions(m_heardMenu, Command::menumheardoptions,
                   {20, 30, -1, 40, 45, -1, 60, 65, 70, -1, 100});
}

void HeardPanelView::popup(const QPoint& at) {
  MHeardList* heard = m_kit.handlers().heardList;
  if (heard == nullptr) return;
  const QModelIndex index = m_list->indexAt(at);
  heard->LstMHeardList_RightPress(index.isValid() ? index.row() : -1);
  heard->LstMHeardList_RightRelease();
  m_kit.refresh();
  if (m_kit.data().mnuMHeardPopup) m_heardMenu->exec(m_list->viewport()->mapToGlobal(at));
  heard->PopupClosed();
}

void HeardPanelView::renderList() {
  const ListBox& d = m_kit.data().LstMHeardList;
  const QSignalBlocker block(m_list);
  if (RenderListItems(m_list, d)) {
    // The list grows to show a whole row beside its vertical scroll bar: a date in the
    // desktop's form can be longer than the space first given, and a cut-off time helps nobody.
    const int rowWidth = m_list->sizeHintForColumn(0) + 2 * m_list->frameWidth() +
                         m_list->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (rowWidth > m_list->minimumWidth()) m_list->setMinimumWidth(rowWidth);
  }
  if (m_list->currentRow() >= 0) m_list->scrollToItem(m_list->currentItem());
  m_list->setToolTip(ToQString(d.toolTip));
  PaintColors(m_list, d, QPalette::Text, QPalette::Base);
  m_list->setAutoFillBackground(false);
}

void HeardPanelView::render() {
  const MainWindow& d = m_kit.data();
  renderList();
  const QString on[2] = {QStringLiteral("#20d020"), QStringLiteral("#ff3030")};
  for (std::size_t i = 0; i < 2; ++i) {
    const QString color = d.imgTXRXlight[i].visible ? on[i] : QStringLiteral("#404040");
    m_lamps[i]->setStyleSheet(QStringLiteral("QLabel { background-color: %1; border-radius: 7px;"
                                             " border: 1px solid palette(dark); }")
                                  .arg(color));
  }
  m_digiLogo->setVisible(d.imgLogoDigi.visible);
  const auto renderOption = [](QRadioButton* w, const OptionButton& o, const QString& caption) {
    const QSignalBlocker block(w);
    w->setText(o.caption.empty() ? caption : ToQString(o.caption));
    w->setChecked(o.value);
    w->setVisible(o.visible);
    w->setEnabled(o.enabled);
    w->setToolTip(ToQString(o.toolTip));
  };
  renderOption(m_optSort, d.OptSort, QObject::tr("Sort"));
  renderOption(m_optUnsort, d.OptUnsort, QObject::tr("Unsorted"));
}

}  // namespace tesk
