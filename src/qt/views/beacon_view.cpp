// The beacon window's widgets: the beacon and its items on the left, the time windows, the
// automatic stop and the Shadow Experiment frame on the right, Apply and Cancel below.
#include "qt/views/beacon_view.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "qt/qt_text.h"
#include "qt/views/combo_items.h"
#include "qt/views/view_kit.h"

namespace tesk {

namespace {

void RenderControl(QWidget* w, const Control& d) {
  w->setToolTip(ToQString(d.toolTip));
  w->setVisible(d.visible);
  w->setEnabled(d.enabled);
}

int CharWidth(const QWidget* w, int chars) {
  return w->fontMetrics().horizontalAdvance(QStringLiteral("0")) * chars + 16;
}

}  // namespace

BeaconView::BeaconView(BeaconSetup& setup, QWidget* parent)
    : CancellingDialog(parent, setup.window().form, [&setup] { setup.Command2_Click(); }),
      m_setup(setup),
      m_data(setup.window()) {
  setObjectName(QStringLiteral("Beacon"));
  setModal(false);
  auto* col = new QVBoxLayout(this);
  auto* columns = new QHBoxLayout;
  auto* left = new QVBoxLayout;
  left->addWidget(buildBeacon());
  left->addWidget(buildItems());
  left->addStretch(1);
  auto* right = new QVBoxLayout;
  right->addWidget(buildTimes());
  right->addWidget(buildStop());
  right->addWidget(buildShadow());
  right->addStretch(1);
  columns->addLayout(left);
  columns->addLayout(right);
  col->addLayout(columns);

  auto* buttons = new QHBoxLayout;
  m_pcTime = new QLabel(this);
  m_pcTime->setObjectName(QStringLiteral("LblPCTime"));
  m_pcTime->setToolTip(tr("The time of this computer"));
  QFont clock = m_pcTime->font();
  clock.setBold(true);
  m_pcTime->setFont(clock);
  buttons->addWidget(new QLabel(tr("PC time:"), this));
  buttons->addWidget(m_pcTime);
  buttons->addStretch(1);
  QPushButton* apply =
      addButton(m_data.Command1, QStringLiteral("Command1"), [this] { m_setup.Command1_Click(); });
  apply->setDefault(true);
  QPushButton* cancel =
      addButton(m_data.Command2, QStringLiteral("Command2"), [this] { m_setup.Command2_Click(); });
  cancel->setAutoDefault(false);
  buttons->addWidget(apply);
  buttons->addWidget(cancel);
  col->addLayout(buttons);
  refresh();
}

BeaconView::~BeaconView() {
  // Deleting the children moves the focus, and a text box that loses it reports an edit finished:
  // by then this view is gone, so its boxes must not reach it any more.
  for (const auto& text : m_texts)
    text.first->disconnect(this);
}

QWidget* BeaconView::buildBeacon() {
  auto* box = new QGroupBox(tr("Beacon"), this);
  auto* form = new QFormLayout(box);
  form->addRow(addCheck(m_data.chkBeaconActiv, "chkBeaconActiv",
                        [this] { m_setup.chkBeaconActiv_Click(); }));
  auto* interval = new QHBoxLayout;
  QLineEdit* seconds = addText(
      m_data.txtBeaconInterval, QStringLiteral("txtBeaconInterval"),
      [this](char k) { m_setup.txtBeaconInterval_KeyPress(k); },
      [this] { m_setup.txtBeaconInterval_LostFocus(); }, 6);
  m_intervalTime = new QLabel(box);
  m_intervalTime->setObjectName(QStringLiteral("lblBeaconIntervalTime"));
  interval->addWidget(seconds);
  interval->addWidget(m_intervalTime);
  interval->addStretch(1);
  form->addRow(tr("Interval (seconds):"), interval);
  form->addRow(addCheck(m_data.chkBeaconIntelligentAktiv, "chkBeaconIntelligentAktiv",
                        [this] { m_setup.chkBeaconIntelligentAktiv_Click(); }));
  form->addRow(tr("Heard text:"),
               addText(m_data.txtIntelligenBeaconString,
                       QStringLiteral("txtIntelligenBeaconString"), nullptr, nullptr, 16));
  return box;
}

QWidget* BeaconView::buildStop() {
  auto* box = new QGroupBox(tr("Automatic stop"), this);
  auto* stop = new QHBoxLayout(box);
  stop->addWidget(addCheck(m_data.chkStopBeacon, "chkStopBeacon", nullptr));
  m_stop = new QComboBox(box);
  m_stop->setObjectName(QStringLiteral("cmbStopBeacon"));
  connect(m_stop, &QComboBox::activated, this, [this](int index) {
    m_data.cmbStopBeacon.listIndex = index;
    m_data.cmbStopBeacon.text = FromQString(m_stop->itemText(index));
  });
  stop->addWidget(m_stop);
  stop->addStretch(1);
  return box;
}

QWidget* BeaconView::buildItems() {
  auto* box = new QGroupBox(tr("Items sent in turn"), this);
  auto* grid = new QGridLayout(box);
  grid->addWidget(addCheck(m_data.chkItemData, "chkItemData", nullptr), 0, 0);
  grid->addWidget(addCheck(m_data.chkItemAPRS, "chkItemAPRS", nullptr), 0, 1);
  grid->addWidget(addCheck(m_data.chkItemAPRSMessage, "chkItemAPRSMessage", nullptr), 1, 0);
  grid->addWidget(addCheck(m_data.chkItemMHeard, "chkItemMHeard", nullptr), 1, 1);
  grid->addWidget(
      addCheck(m_data.chkItemFile, "chkItemFile", [this] { m_setup.chkItemFile_Click(); }), 2, 0, 1,
      2);
  auto* file = new QHBoxLayout;
  QLineEdit* path =
      addText(m_data.txtAddFilePath, QStringLiteral("txtAddFilePath"), nullptr, nullptr, 0);
  path->setMinimumWidth(CharWidth(path, 28));
  file->addWidget(path, 1);
  file->addWidget(addButton(m_data.cmdBrowseAddFilePath, QStringLiteral("cmdBrowseAddFilePath"),
                            [this] { m_setup.cmdBrowseAddFilePath_Click(); }));
  file->addWidget(addButton(m_data.cmdEditAddFile, QStringLiteral("cmdEditAddFile"),
                            [this] { m_setup.cmdEditAddFile_Click(); }));
  grid->addLayout(file, 3, 0, 1, 2);
  for (int i = 0; i < kBeaconLineChoices; ++i) {
    auto* option = new QRadioButton(box);
    option->setObjectName(QStringLiteral("OptWhichBeaconLines_%1").arg(i));
    connect(option, &QRadioButton::clicked, this,
            [this, i] { handle([this, i] { m_setup.OptWhichBeaconLines_Click(i); }); });
    grid->addWidget(option, 4 + i / 2, i % 2);
    m_lines[static_cast<std::size_t>(i)] = option;
  }
  grid->addWidget(addCheck(m_data.chkItemFileAddLoc, "chkItemFileAddLoc", nullptr), 6, 0, 1, 2);
  return box;
}

QWidget* BeaconView::buildTimes() {
  auto* box = new QGroupBox(tr("Time windows"), this);
  auto* grid = new QGridLayout(box);
  grid->addWidget(addCheck(m_data.chkAutoTimedBeacon, "chkAutoTimedBeacon",
                           [this] { m_setup.chkAutoTimedBeacon_Click(); }),
                  0, 0, 1, 6);
  grid->addWidget(new QLabel(tr("Start"), box), 1, 1);
  grid->addWidget(new QLabel(tr("Stop"), box), 1, 3);
  for (int i = 0; i < kBeaconTimeWindows; ++i) {
    const auto at = static_cast<std::size_t>(i);
    const int row = 2 + i;
    grid->addWidget(new QLabel(QString::number(i + 1) + QStringLiteral("."), box), row, 0);
    grid->addWidget(addText(
                        m_data.TxtStart[at], QStringLiteral("TxtStart%1").arg(i),
                        [this, i](char k) { m_setup.TxtStart_KeyPress(i, k); },
                        [this, i] { m_setup.TxtStart_LostFocus(i); }, 5),
                    row, 1);
    grid->addWidget(addButton(m_data.cmdPasteCurrentStartime[at],
                              QStringLiteral("cmdPasteCurrentStartime%1").arg(i),
                              [this, i] { m_setup.cmdPasteCurrentStartime_Click(i); }),
                    row, 2);
    grid->addWidget(addText(
                        m_data.TxtStop[at], QStringLiteral("TxtStop%1").arg(i),
                        [this, i](char k) { m_setup.TxtStop_KeyPress(i, k); },
                        [this, i] { m_setup.TxtStop_LostFocus(i); }, 5),
                    row, 3);
    grid->addWidget(addButton(m_data.cmdPasteCurrentStoptime[at],
                              QStringLiteral("cmdPasteCurrentStoptime%1").arg(i),
                              [this, i] { m_setup.cmdPasteCurrentStoptime_Click(i); }),
                    row, 4);
    grid->addWidget(addButton(m_data.CmdClear[at], QStringLiteral("CmdClear%1").arg(i),
                              [this, i] { m_setup.CmdClear_Click(i); }),
                    row, 5);
  }
  grid->setColumnStretch(6, 1);
  return box;
}

QWidget* BeaconView::buildShadow() {
  m_shadow = new QGroupBox(this);
  m_shadow->setObjectName(QStringLiteral("FrmShadowExp"));
  auto* form = new QFormLayout(m_shadow);
  form->addRow(addCheck(m_data.ChkShadow, "ChkShadow", [this] { m_setup.ChkShadow_Click(); }));
  form->addRow(addCheck(m_data.ChkShExpGMT, "ChkShExpGMT", nullptr));
  form->addRow(tr("Your Country ISO code:"),
               addText(m_data.txtISOcode, QStringLiteral("txtISOcode"), nullptr, nullptr, 4));
  form->addRow(tr("Interval beacon pause:"),
               addText(
                   m_data.txtShExpPause, QStringLiteral("txtShExpPause"),
                   [this](char k) { m_setup.txtShExpPause_KeyPress(k); }, nullptr, 6));
  return m_shadow;
}

QCheckBox* BeaconView::addCheck(CheckBox& data, const char* name, std::function<void()> click) {
  auto* w = new QCheckBox(this);
  w->setObjectName(QString::fromLatin1(name));
  CheckBox* d = &data;
  connect(w, &QCheckBox::clicked, this, [this, d, click](bool on) {
    d->value = on ? 1 : 0;
    handle(click ? click : [] {});
  });
  m_checks.emplace_back(w, d);
  return w;
}

QLineEdit* BeaconView::addText(TextBox& data, const QString& name, std::function<void(char)> key,
                               std::function<void()> left, int widthChars) {
  auto* w = new QLineEdit(this);
  w->setObjectName(name);
  if (widthChars > 0) w->setMaximumWidth(CharWidth(w, widthChars));
  TextBox* d = &data;
  connect(w, &QLineEdit::textEdited, this, [this, d, w, key](const QString& t) {
    const std::string typed = FromQString(t);
    if (!key) {
      d->text = typed;
      return;
    }
    // The text is typed again through the window's key rule, which drops what it refuses.
    d->text.clear();
    for (char c : typed)
      key(c);
    handle([] {});
    w->setCursorPosition(static_cast<int>(w->text().size()));
  });
  if (left) connect(w, &QLineEdit::editingFinished, this, [this, left] { handle(left); });
  m_texts.emplace_back(w, d);
  return w;
}

QPushButton* BeaconView::addButton(Button& data, const QString& name, std::function<void()> press) {
  auto* w = new QPushButton(this);
  w->setObjectName(name);
  w->setAutoDefault(false);
  connect(w, &QPushButton::clicked, this, [this, press] { handle(press); });
  m_buttons.emplace_back(w, &data);
  return w;
}

void BeaconView::handle(const std::function<void()>& handler) {
  handler();
  if (m_data.form.loaded) refresh();
}

void BeaconView::refresh() {
  setWindowTitle(ToQString(m_data.form.caption));
  for (auto& [w, d] : m_checks) {
    const QSignalBlocker block(w);
    w->setText(ToQString(d->caption));
    w->setChecked(d->value == 1);
    RenderControl(w, *d);
  }
  for (auto& [w, d] : m_texts) {
    const QSignalBlocker block(w);
    if (w->text() != ToQString(d->text)) w->setText(ToQString(d->text));
    RenderMaxLength(w, d->maxLength);
    RenderControl(w, *d);
    // A greyed box shows greyed, whatever colour the struct keeps for it.
  }
  for (auto& [w, d] : m_buttons) {
    w->setText(ToQString(d->caption));
    RenderControl(w, *d);
  }
  for (int i = 0; i < kBeaconLineChoices; ++i) {
    const OptionButton& d = m_data.OptWhichBeaconLines[static_cast<std::size_t>(i)];
    QRadioButton* w = m_lines[static_cast<std::size_t>(i)];
    const QSignalBlocker block(w);
    w->setText(ToQString(d.caption));
    w->setChecked(d.value);
    RenderControl(w, d);
  }
  m_intervalTime->setText(ToQString(m_data.lblBeaconIntervalTime.caption));
  m_pcTime->setText(ToQString(m_data.LblPCTime.caption));
  QPalette clock = m_pcTime->palette();
  clock.setColor(QPalette::WindowText, m_data.LblPCTime.foreColor == kDefaultFore
                                           ? palette().color(QPalette::WindowText)
                                           : ToQColor(m_data.LblPCTime.foreColor));
  m_pcTime->setPalette(clock);
  {
    const QSignalBlocker block(m_stop);
    RenderComboItems(m_stop, m_data.cmbStopBeacon);
    RenderControl(m_stop, m_data.cmbStopBeacon);
  }
  m_shadow->setTitle(ToQString(m_data.FrmShadowExp.caption));
  RenderControl(m_shadow, m_data.FrmShadowExp);
  // A handler that moves the focus names the control; the window follows once.
  if (!m_data.focus.empty()) {
    if (auto* w = findChild<QWidget*>(ToQString(m_data.focus))) w->setFocus();
    m_data.focus.clear();
  }
}

}  // namespace tesk
