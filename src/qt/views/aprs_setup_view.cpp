// The position setup window's widgets: the two coordinate rows and the locator on top, the
// compressed box, the icon row with the name of the one picked and the user's own icon, then
// the six memory slots and the buttons.
#include "qt/views/aprs_setup_view.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include "qt/qt_text.h"
#include "qt/views/aprs_icon_painter.h"
#include "qt/views/combo_items.h"
#include "qt/views/view_kit.h"
#include "transmit/tx_panel.h"

namespace tesk {

namespace {

constexpr int kIconSize = 36;
constexpr int kIconsPerRow = 7;

void RenderControl(QWidget* w, const Control& d) {
  w->setToolTip(ToQString(d.toolTip));
  w->setVisible(d.visible);
  w->setEnabled(d.enabled);
}

void RenderText(QLineEdit* w, const TextBox& d) {
  const QSignalBlocker block(w);
  if (w->text() != ToQString(d.text)) w->setText(ToQString(d.text));
  RenderMaxLength(w, d.maxLength);
  RenderControl(w, d);
}

void RenderCheck(QCheckBox* w, const CheckBox& d) {
  const QSignalBlocker block(w);
  w->setText(ToQString(d.caption));
  w->setChecked(d.value == 1);
  RenderControl(w, d);
}

void RenderButton(QPushButton* w, const Button& d) {
  w->setText(ToQString(d.caption));
  RenderControl(w, d);
}

// The key the handlers know: letters as their capitals, the blank, Enter.
int KeyCodeOf(const QKeyEvent& e) {
  if (e.key() == Qt::Key_Return || e.key() == Qt::Key_Enter) return kKeyReturn;
  if (e.key() == Qt::Key_Space) return ' ';
  if (e.key() >= Qt::Key_A && e.key() <= Qt::Key_Z) return kKeyA + (e.key() - Qt::Key_A);
  return 0;
}

}  // namespace

AprsSetupView::AprsSetupView(AprsSetup& setup, QWidget* parent)
    : CancellingDialog(parent, setup.window().form, [&setup] { setup.Command2_Click(); }),
      m_setup(setup),
      m_data(setup.window()) {
  setObjectName(QStringLiteral("frmAPRSSetup"));
  setModal(false);
  auto* col = new QVBoxLayout(this);

  auto* position = new QGroupBox(tr("Position"), this);
  auto* grid = new QGridLayout(position);
  m_latH = addText(m_data.txtLatH, "txtLatH", 3);
  m_latM = addText(m_data.txtLatM, "txtLatM", 3);
  m_latS = addText(m_data.txtLatS, "txtLatS", 3);
  m_latDirection = addDirection(m_data.cmbLatDirection, "cmbLatDirection");
  m_lonH = addText(m_data.txtLonH, "txtLonH", 4);
  m_lonM = addText(m_data.txtLonM, "txtLonM", 3);
  m_lonS = addText(m_data.txtLonS, "txtLonS", 3);
  m_lonDirection = addDirection(m_data.cmbLonDirection, "cmbLonDirection");
  const auto row = [this, grid](int r, const QString& title, std::array<QWidget*, 4> boxes) {
    grid->addWidget(new QLabel(title, this), r, 0);
    const QString marks[4] = {QStringLiteral("°"), QStringLiteral("."), QStringLiteral("'"), {}};
    for (int i = 0; i < 4; ++i) {
      grid->addWidget(boxes[static_cast<std::size_t>(i)], r, 1 + i * 2);
      if (!marks[i].isEmpty()) grid->addWidget(new QLabel(marks[i], this), r, 2 + i * 2);
    }
  };
  row(0, tr("Latitude:"), {m_latH, m_latM, m_latS, m_latDirection});
  row(1, tr("Longitude:"), {m_lonH, m_lonM, m_lonS, m_lonDirection});
  grid->setColumnStretch(8, 1);
  auto* locator = new QHBoxLayout;
  m_maiden = addText(m_data.txtMaiden, "txtMaiden", 8);
  m_maiden->installEventFilter(this);
  m_convert = addButton("CmdOkLocat", [this] { m_setup.CmdOkLocat_Click(); });
  m_convert->setAutoDefault(false);
  locator->addWidget(new QLabel(tr("Locator:"), this));
  locator->addWidget(m_maiden);
  locator->addWidget(m_convert);
  locator->addStretch(1);
  grid->addLayout(locator, 2, 0, 1, 9);
  m_compressed = new QCheckBox(this);
  m_compressed->setObjectName(QStringLiteral("chkAPRSCompressed"));
  connect(m_compressed, &QCheckBox::clicked, this,
          [this](bool on) { m_data.chkAPRSCompressed.value = on ? 1 : 0; });
  grid->addWidget(m_compressed, 3, 0, 1, 9);
  col->addWidget(position);

  auto* icons = new QGroupBox(tr("Icon"), this);
  auto* iconGrid = new QGridLayout(icons);
  for (int i = 0; i < kAprsIconRows; ++i) {
    auto* b = new QToolButton(icons);
    b->setObjectName(QStringLiteral("img_APRSImage_%1").arg(i));
    b->setIconSize(QSize(kIconSize, kIconSize));
    b->setAutoRaise(true);
    connect(b, &QToolButton::clicked, this,
            [this, i] { handle([this, i] { m_setup.img_APRSImage_Click(i); }); });
    iconGrid->addWidget(b, i / kIconsPerRow, i % kIconsPerRow);
    m_icons[static_cast<std::size_t>(i)] = b;
  }
  m_iconName = new QLabel(icons);
  m_iconName->setObjectName(QStringLiteral("Label2"));
  QFont bold = m_iconName->font();
  bold.setBold(true);
  m_iconName->setFont(bold);
  iconGrid->addWidget(m_iconName, 3, 0, 1, kIconsPerRow);
  auto* user = new QHBoxLayout;
  m_userIcon = new QCheckBox(icons);
  m_userIcon->setObjectName(QStringLiteral("Check1"));
  connect(m_userIcon, &QCheckBox::clicked, this,
          [this](bool on) { m_data.Check1.value = on ? 1 : 0; });
  m_userTable = addText(m_data.Text1, "Text1", 2);
  m_userCode = addText(m_data.Text2, "Text2", 2);
  user->addWidget(m_userIcon);
  user->addWidget(new QLabel(tr("Table:"), icons));
  user->addWidget(m_userTable);
  user->addWidget(new QLabel(tr("Code:"), icons));
  user->addWidget(m_userCode);
  user->addStretch(1);
  iconGrid->addLayout(user, 4, 0, 1, kIconsPerRow);
  col->addWidget(icons);

  auto* memory = new QGroupBox(tr("Memory slots"), this);
  auto* slotRow = new QHBoxLayout(memory);
  for (int i = 0; i < kMemorySlots; ++i) {
    QPushButton* b = addButton(qPrintable(QStringLiteral("CmdMem_%1").arg(i)),
                               [this, i] { m_setup.CmdMem_MouseUp(i, AprsSetup::kLeftButton); });
    b->setAutoDefault(false);
    // The right button stores; Qt reports its release as a context menu request.
    b->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(b, &QPushButton::customContextMenuRequested, this, [this, i] {
      handle([this, i] { m_setup.CmdMem_MouseUp(i, AprsSetup::kRightButton); });
    });
    slotRow->addWidget(b);
    m_slots[static_cast<std::size_t>(i)] = b;
  }
  col->addWidget(memory);

  auto* buttons = new QHBoxLayout;
  m_options = addButton("Cmdaprsetup", [this] { m_setup.Cmdaprsetup_Click(); });
  m_options->setAutoDefault(false);
  m_ok = addButton("Command1", [this] { m_setup.Command1_Click(); });
  m_ok->setDefault(true);
  m_cancel = addButton("Command2", [this] { m_setup.Command2_Click(); });
  m_cancel->setAutoDefault(false);
  buttons->addWidget(m_options);
  buttons->addStretch(1);
  buttons->addWidget(m_ok);
  buttons->addWidget(m_cancel);
  col->addLayout(buttons);
  refresh();
}

AprsSetupView::~AprsSetupView() = default;

void AprsSetupView::handle(const std::function<void()>& handler) {
  handler();
  if (m_data.form.loaded) refresh();
}

QLineEdit* AprsSetupView::addText(TextBox& data, const char* name, int widthChars) {
  auto* w = new QLineEdit(this);
  w->setObjectName(QString::fromLatin1(name));
  w->setMaximumWidth(w->fontMetrics().horizontalAdvance(QStringLiteral("W")) * widthChars + 12);
  TextBox* d = &data;
  connect(w, &QLineEdit::textChanged, this, [d, w](const QString& t) {
    d->text = FromQString(t);
    d->selStart = w->cursorPosition();
  });
  return w;
}

QComboBox* AprsSetupView::addDirection(ComboBox& data, const char* name) {
  auto* w = new QComboBox(this);
  w->setObjectName(QString::fromLatin1(name));
  // Editable, as the operator may type the letter; OK checks what is there.
  w->setEditable(true);
  w->setInsertPolicy(QComboBox::NoInsert);
  w->setMaximumWidth(w->fontMetrics().horizontalAdvance(QStringLiteral("W")) * 3 + 36);
  ComboBox* d = &data;
  connect(w, &QComboBox::editTextChanged, this,
          [d](const QString& t) { d->text = FromQString(t); });
  return w;
}

QPushButton* AprsSetupView::addButton(const char* name, std::function<void()> handler) {
  auto* w = new QPushButton(this);
  w->setObjectName(QString::fromLatin1(name));
  if (handler) connect(w, &QPushButton::clicked, this, [this, handler] { handle(handler); });
  return w;
}

bool AprsSetupView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_maiden && event->type() == QEvent::KeyPress) {
    const int key = KeyCodeOf(*static_cast<QKeyEvent*>(event));
    bool swallowed = false;
    handle([this, key, &swallowed] { swallowed = m_setup.txtMaiden_KeyDown(key); });
    return swallowed;
  }
  if (watched == m_maiden && event->type() == QEvent::KeyRelease) {
    const int key = KeyCodeOf(*static_cast<QKeyEvent*>(event));
    m_data.txtMaiden.selStart = m_maiden->cursorPosition();
    handle([this, key] { m_setup.txtMaiden_KeyUp(key); });
    if (m_data.form.loaded)
      m_maiden->setCursorPosition(static_cast<int>(m_data.txtMaiden.selStart));
  }
  return QDialog::eventFilter(watched, event);
}

void AprsSetupView::refresh() {
  setWindowTitle(ToQString(m_data.form.caption));
  RenderText(m_latH, m_data.txtLatH);
  RenderText(m_latM, m_data.txtLatM);
  RenderText(m_latS, m_data.txtLatS);
  RenderText(m_lonH, m_data.txtLonH);
  RenderText(m_lonM, m_data.txtLonM);
  RenderText(m_lonS, m_data.txtLonS);
  for (auto [w, d] : {std::pair{m_latDirection, &m_data.cmbLatDirection},
                      std::pair{m_lonDirection, &m_data.cmbLonDirection}}) {
    const QSignalBlocker block(w);
    RenderComboItems(w, *d);
    if (w->currentText() != ToQString(d->text)) w->setEditText(ToQString(d->text));
    RenderControl(w, *d);
  }
  RenderText(m_maiden, m_data.txtMaiden);
  RenderButton(m_convert, m_data.CmdOkLocat);
  RenderCheck(m_compressed, m_data.chkAPRSCompressed);
  for (int i = 0; i < kAprsIconRows; ++i) {
    const AprsIconImage& d = m_data.img_APRSImage[static_cast<std::size_t>(i)];
    QToolButton* w = m_icons[static_cast<std::size_t>(i)];
    w->setIcon(QIcon(AprsIconPixmap(d.picture, kIconSize, d.BorderStyle == 1)));
    w->setToolTip(ToQString(d.toolTip));
    w->setVisible(d.visible);
  }
  m_iconName->setText(ToQString(m_data.Label2.caption));
  RenderCheck(m_userIcon, m_data.Check1);
  RenderText(m_userTable, m_data.Text1);
  RenderText(m_userCode, m_data.Text2);
  for (int i = 0; i < kMemorySlots; ++i)
    RenderButton(m_slots[static_cast<std::size_t>(i)], m_data.CmdMem[static_cast<std::size_t>(i)]);
  RenderButton(m_ok, m_data.Command1);
  RenderButton(m_cancel, m_data.Command2);
  RenderButton(m_options, m_data.Cmdaprsetup);
  // A handler that moves the focus names the control; the window follows once.
  if (!m_data.focus.empty()) {
    if (auto* w = findChild<QWidget*>(ToQString(m_data.focus))) w->setFocus();
    m_data.focus.clear();
  }
}

}  // namespace tesk
