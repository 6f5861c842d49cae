// The Multi-Line window's widgets. The editor gives LF line ends; the struct, which is what is
// sent and saved, holds CR LF, so each edit is converted before the handler sees it.
#include "qt/views/tx_multi_line_view.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "base/text.h"
#include "qt/qt_text.h"
#include "qt/views/monitor_view.h"

namespace tesk {

namespace {

void RenderControl(QWidget* w, const Control& d) {
  w->setToolTip(ToQString(d.toolTip));
  w->setVisible(d.visible);
  w->setEnabled(d.enabled);
}

// The character 127 has no picture of its own; its name stands for it.
QString ButtonText(const std::string& caption) {
  if (caption == Chr(127)) return QStringLiteral("DEL");
  if (caption == " ") return QStringLiteral("Blank");
  if (caption == "&") return QStringLiteral("&&");
  return ToQString(caption);
}

QString PageTitle(int page) {
  return QStringLiteral("Page &%1").arg(page + 1);
}

}  // namespace

TxMultiLineView::TxMultiLineView(TxMultiLineForm& multiLine, QWidget* parent)
    : QDialog(parent), m_multiLine(multiLine), m_data(multiLine.window()) {
  setObjectName(QString::fromLatin1(TxMultiLineForm::kWindowName));
  setModal(false);
  auto* layout = new QVBoxLayout(this);
  m_tabs = new QTabWidget(this);
  m_tabs->setObjectName(QStringLiteral("pages"));
  for (int page = 0; page < kMultiLinePages; ++page)
    m_tabs->addTab(buildPage(page), PageTitle(page));
  layout->addWidget(m_tabs, 1);

  auto* bottom = new QHBoxLayout;
  m_switchFont = new QCheckBox(this);
  m_switchFont->setObjectName(QStringLiteral("ChkSwitchFont"));
  connect(m_switchFont, &QCheckBox::toggled, this, [this](bool on) {
    if (m_rendering) return;
    m_data.ChkSwitchFont.value = on ? 1 : 0;
    m_multiLine.ChkSwitchFont_Click();
  });
  bottom->addWidget(m_switchFont);
  bottom->addStretch(1);
  m_help = new QToolButton(this);
  m_help->setObjectName(QStringLiteral("Image1"));
  m_help->setIcon(QIcon::fromTheme(QStringLiteral("help-contents"),
                                   style()->standardIcon(QStyle::SP_MessageBoxQuestion)));
  m_help->setText(tr("Help"));
  m_help->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  connect(m_help, &QToolButton::clicked, this, [this]() { m_multiLine.Image1_Click(); });
  bottom->addWidget(m_help);
  auto* closeButton = new QPushButton(tr("Close"), this);
  closeButton->setObjectName(QStringLiteral("cmdClose"));
  closeButton->setAutoDefault(false);
  connect(closeButton, &QPushButton::clicked, this, [this]() { unload(); });
  bottom->addWidget(closeButton);
  layout->addLayout(bottom);
  resize(640, 400);
  refresh();
}

TxMultiLineView::~TxMultiLineView() = default;

QWidget* TxMultiLineView::buildPage(int page) {
  PageWidgets& p = m_pages[static_cast<std::size_t>(page)];
  auto* widget = new QWidget(this);
  auto* col = new QVBoxLayout(widget);
  p.text = new QPlainTextEdit(widget);
  p.text->setObjectName(QStringLiteral("TxtMultiLine%1").arg(page));
  p.text->setLineWrapMode(QPlainTextEdit::NoWrap);
  p.text->setTabChangesFocus(false);
  connect(p.text, &QPlainTextEdit::textChanged, this, [this, page]() { textEdited(page); });
  col->addWidget(p.text, 1);

  auto* signs = new QHBoxLayout;
  const auto label = [&](const char* name) {
    auto* l = new QLabel(widget);
    l->setObjectName(QStringLiteral("%1%2").arg(QLatin1String(name)).arg(page));
    signs->addWidget(l);
    return l;
  };
  p.length = label("LblLength");
  p.maxLength = label("LblMaxLength");
  p.maxLines = label("LblMaxLines");
  for (QLabel* sign : {p.maxLength, p.maxLines}) {
    QFont f = sign->font();
    f.setBold(true);
    sign->setFont(f);
  }
  signs->addStretch(1);
  p.isDefault = new QRadioButton(widget);
  p.isDefault->setObjectName(QStringLiteral("OptDefaultTXMulti%1").arg(page));
  p.isDefault->setAutoExclusive(false);  // the handler marks one page and clears the others
  connect(p.isDefault, &QRadioButton::clicked, this, [this, page]() {
    if (!m_rendering) m_multiLine.OptDefaultTXMulti_Click(page);
    refresh();
  });
  signs->addWidget(p.isDefault);
  p.send = new QPushButton(widget);
  p.send->setObjectName(QStringLiteral("cmdTXMultiLines%1").arg(page));
  p.send->setAutoDefault(false);
  connect(p.send, &QPushButton::clicked, this, [this, page]() {
    m_multiLine.cmdTXMultiLines_Click(page);
    refresh();
  });
  signs->addWidget(p.send);
  col->addLayout(signs);

  auto* characters = new QHBoxLayout;
  for (int number = 1; number <= TxMultiLineForm::kCharacterButtons; ++number) {
    auto* b = new QPushButton(widget);
    b->setObjectName(QStringLiteral("Command%1_%2").arg(number).arg(page));
    b->setAutoDefault(false);
    b->setFocusPolicy(Qt::TabFocus);  // the caret stays in the page while characters are added
    connect(b, &QPushButton::clicked, this, [this, number, page]() {
      m_multiLine.Command_Click(number, page);
      refresh();
    });
    if (number < TxMultiLineForm::kCharacterButtons) {
      b->setMinimumWidth(b->fontMetrics().horizontalAdvance(QStringLiteral("Blank")) + 16);
      b->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    } else {
      characters->addStretch(1);
    }
    characters->addWidget(b);
    p.characters[static_cast<std::size_t>(number - 1)] = b;
  }
  col->addLayout(characters);
  return widget;
}

void TxMultiLineView::textEdited(int page) {
  if (m_rendering) return;
  const PageWidgets& p = m_pages[static_cast<std::size_t>(page)];
  TextBox& box = m_data.TxtMultiLine[static_cast<std::size_t>(page)];
  QString typed = p.text->toPlainText();
  typed.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
  box.text = FromQString(typed);
  m_multiLine.TxtMultiLine_Change(page);
  refresh();
}

void TxMultiLineView::renderPage(int page) {
  const std::size_t i = static_cast<std::size_t>(page);
  PageWidgets& p = m_pages[i];
  const TextBox& box = m_data.TxtMultiLine[i];
  const QString text = ToQStringLines(box.text);
  if (p.text->toPlainText() != text) {
    // Text set by a handler (a character button, the load): the caret goes to its end.
    p.text->setPlainText(text);
    p.text->moveCursor(QTextCursor::End);
  }
  QPalette palette = p.text->palette();
  palette.setColor(QPalette::Text, ToQColor(box.foreColor));
  palette.setColor(QPalette::Base, ToQColor(box.backColor));
  p.text->setPalette(palette);
  const MultiLineFont& look = m_data.pageFont;
  const QFont font = MonitorFont(MonitorLook{box.backColor, look.name, look.size, look.bold});
  p.text->setFont(font);
  const std::pair<QLabel*, const Label*> labels[] = {{p.length, &m_data.LblLength[i]},
                                                     {p.maxLength, &m_data.LblMaxLength[i]},
                                                     {p.maxLines, &m_data.LblMaxLines[i]}};
  for (const auto& [widget, data] : labels) {
    widget->setText(ToQString(data->caption));
    RenderControl(widget, *data);
    if (data != &m_data.LblLength[i]) {
      QPalette red = widget->palette();
      red.setColor(QPalette::WindowText, ToQColor(data->foreColor));
      widget->setPalette(red);
    }
  }
  p.send->setText(ToQString(m_data.cmdTXMultiLines[i].caption));
  RenderControl(p.send, m_data.cmdTXMultiLines[i]);
  p.isDefault->setText(ToQString(m_data.OptDefaultTXMulti[i].caption));
  p.isDefault->setChecked(m_data.OptDefaultTXMulti[i].value);
  RenderControl(p.isDefault, m_data.OptDefaultTXMulti[i]);
  for (int number = 1; number <= TxMultiLineForm::kCharacterButtons; ++number) {
    QPushButton* b = p.characters[static_cast<std::size_t>(number - 1)];
    const Button& d = m_multiLine.characterButton(number, page);
    b->setText(ButtonText(d.caption));
    RenderControl(b, d);
    if (number < TxMultiLineForm::kCharacterButtons) b->setFont(font);
  }
  // A sign showing is seen on the page's tab too, when another page is in front.
  const bool warned = m_data.LblMaxLength[i].visible || m_data.LblMaxLines[i].visible;
  m_tabs->setTabIcon(page, warned ? style()->standardIcon(QStyle::SP_MessageBoxWarning) : QIcon());
}

void TxMultiLineView::refresh() {
  m_rendering = true;
  setWindowTitle(ToQString(m_data.form.caption));
  const QSignalBlocker blockFont(m_switchFont);
  for (int page = 0; page < kMultiLinePages; ++page) {
    const QSignalBlocker block(m_pages[static_cast<std::size_t>(page)].text);
    renderPage(page);
  }
  m_switchFont->setText(ToQString(m_data.ChkSwitchFont.caption));
  m_switchFont->setChecked(m_data.ChkSwitchFont.checked());
  RenderControl(m_switchFont, m_data.ChkSwitchFont);
  m_help->setToolTip(ToQString(m_data.Image1.toolTip));
  m_help->setVisible(m_data.Image1.visible);
  m_rendering = false;
}

void TxMultiLineView::unload() {
  // Unloading writes the pages and hides this view through the registry.
  if (m_data.form.loaded) {
    m_multiLine.Form_Unload();
  } else {
    hide();
  }
}

void TxMultiLineView::closeEvent(QCloseEvent* event) {
  event->ignore();
  unload();
}

void TxMultiLineView::reject() {
  unload();
}

}  // namespace tesk
