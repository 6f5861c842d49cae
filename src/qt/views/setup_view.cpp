// The Setup window's widgets. Each page stacks its rows of the control table: check boxes, a
// caption and a field for texts and lists, a titled group for an option row, buttons in a row
// at the foot of the page; the Monitor page adds the colour examples with their buttons.
#include "qt/views/setup_view.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "base/text.h"
#include "qt/qt_text.h"
#include "qt/views/combo_items.h"
#include "qt/views/view_kit.h"

namespace tesk {

namespace {

constexpr int kWideRows = 4;  // an option row with more rows is laid out in columns
constexpr std::size_t kShortCaption = 10;

void RenderControl(QWidget* w, const Control& d) {
  w->setToolTip(ToQString(d.toolTip));
  w->setVisible(d.visible);
  w->setEnabled(d.enabled);
}

template <typename Held>
Held& DataOf(SetupWindow& w, const SetupControl& row) {
  return w.*std::get<Held SetupWindow::*>(row.member);
}

bool IsMonitorColor(const SetupControl& row) {
  return Left(row.name, 8) == "cmdColor";
}

}  // namespace

SetupView::SetupView(Setup& setup, QWidget* parent)
    : CancellingDialog(parent, setup.window().form, [&setup] { setup.Command2_Click(); }),
      m_setup(setup),
      m_data(setup.window()) {
  setObjectName(QStringLiteral("frmSetup"));
  // Modal over the main window only, so that the windows it opens can be used.
  setWindowModality(Qt::WindowModal);
  auto* col = new QVBoxLayout(this);
  auto* body = new QHBoxLayout;
  m_pages = new QListWidget(this);
  m_pages->setObjectName(QStringLiteral("lstPages"));
  m_stack = new QStackedWidget(this);
  for (int i = 0; i < kSetupPages; ++i) {
    const auto page = static_cast<SetupPage>(i);
    m_pages->addItem(QString::fromLatin1(SetupPageName(page)));
    m_stack->addWidget(buildPage(page));
  }
  m_pages->setFixedWidth(m_pages->sizeHintForColumn(0) + 24);
  connect(m_pages, &QListWidget::currentRowChanged, this, [this](int page) {
    if (page >= 0 && page != m_data.page) m_setup.SelectSetupFrame(page);
    refresh();
  });
  body->addWidget(m_pages);
  body->addWidget(m_stack, 1);
  col->addLayout(body, 1);

  m_help = new QLabel(this);
  m_help->setObjectName(QStringLiteral("lblHelp"));
  m_help->setFrameShape(QFrame::StyledPanel);
  m_help->setWordWrap(true);
  m_help->setMinimumHeight(m_help->fontMetrics().lineSpacing() * 2 + 8);
  col->addWidget(m_help);

  const ApplyCancel buttons = addApplyCancel([this]() {
    m_setup.Command1_Click();
    if (m_data.form.loaded) refresh();
  });
  m_apply = buttons.apply;
  m_cancel = buttons.cancel;
  col->addWidget(buttons.box);
  resize(820, 600);
  refresh();
}

SetupView::~SetupView() = default;

QWidget* SetupView::buildPage(SetupPage page) {
  auto* scroll = new QScrollArea(this);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* inner = new QWidget(scroll);
  inner->setObjectName(QStringLiteral("page") + QString::number(static_cast<int>(page)));
  auto* layout = new QVBoxLayout(inner);
  auto* title = new QLabel(QStringLiteral("<b>%1</b>").arg(SetupPageName(page)), inner);
  layout->addWidget(title);
  auto* buttonRow = new QGridLayout;
  int buttons = 0;
  m_line = nullptr;
  for (const SetupControl& row : SetupControls()) {
    if (row.page != page || IsMonitorColor(row)) continue;
    if (row.kind == ScriptKind::Button) {
      auto* b = new QPushButton(inner);
      b->setObjectName(QString::fromStdString(row.name));
      b->setAutoDefault(false);
      const SetupControl* at = &row;
      connect(b, &QPushButton::clicked, this, [this, at]() {
        m_setup.Press(*at);
        if (m_data.form.loaded) refresh();
      });
      watch(b, row.name);
      m_bound.push_back({&row, {b}, nullptr});
      buttonRow->addWidget(b, buttons / kWideRows, buttons % kWideRows);
      ++buttons;
      continue;
    }
    addControl(layout, inner, row);
    if (row.name == "OptTXMHeardType") {
      m_line = nullptr;
      m_heardExample = new QLabel(inner);
      m_heardExample->setObjectName(QStringLiteral("lblMHeardExample"));
      m_heardExample->setWordWrap(true);
      m_heardExample->setFrameShape(QFrame::StyledPanel);
      m_heardExample->setTextInteractionFlags(Qt::TextSelectableByMouse);
      QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
      m_heardExample->setFont(fixed);
      layout->addWidget(m_heardExample);
    }
  }
  if (page == SetupPage::Monitor) addColors(layout, inner);
  layout->addStretch(1);
  buttonRow->setColumnStretch(kWideRows, 1);
  layout->addLayout(buttonRow);
  scroll->setWidget(inner);
  return scroll;
}

void SetupView::addControl(QVBoxLayout* layout, QWidget* page, const SetupControl& row) {
  const QString name = QString::fromStdString(row.name);
  const SetupControl* at = &row;
  Bound bound{&row, {}, nullptr};
  switch (row.kind) {
    case ScriptKind::Check: {
      if (std::holds_alternative<OptionButton SetupWindow::*>(row.member)) {
        auto* w = new QRadioButton(page);
        w->setAutoExclusive(false);  // the window decides which of its options stay chosen
        OptionButton* d = &DataOf<OptionButton>(m_data, row);
        connect(w, &QRadioButton::clicked, this, [this, d, at]() {
          d->value = true;
          changed(*at);
        });
        bound.widgets.push_back(w);
      } else {
        auto* w = new QCheckBox(page);
        CheckBox* d = &DataOf<CheckBox>(m_data, row);
        connect(w, &QCheckBox::clicked, this, [this, d, at](bool on) {
          d->value = on ? 1 : 0;
          changed(*at);
        });
        bound.widgets.push_back(w);
      }
      bound.widgets.front()->setObjectName(name);
      placeOnLine(layout, row, nullptr, bound.widgets.front());
      break;
    }
    case ScriptKind::Option: {
      auto* group = new QGroupBox(QString::fromStdString(row.caption), page);
      group->setObjectName(name);
      auto* grid = new QGridLayout(group);
      OptionRow* d = &DataOf<OptionRow>(m_data, row);
      const int rows = row.rows();
      // Short captions (the ports) stand four to a line; long ones in one or two columns.
      bool shortCaptions = true;
      for (const std::string& caption : row.rowCaptions)
        shortCaptions = shortCaptions && caption.size() <= kShortCaption;
      const bool acrossLines = shortCaptions && rows > kWideRows;
      const int perColumn = rows > kWideRows ? (rows + 1) / 2 : rows;
      for (int i = 0; i < rows; ++i) {
        auto* r = new QRadioButton(group);
        r->setObjectName(name + QString::number(i));
        r->setAutoExclusive(false);
        connect(r, &QRadioButton::clicked, this, [this, d, at, i]() {
          d->choose(i);
          changed(*at);
        });
        if (acrossLines) {
          grid->addWidget(r, i / kWideRows, i % kWideRows);
        } else {
          grid->addWidget(r, i % perColumn, i / perColumn);
        }
        bound.widgets.push_back(r);
      }
      layout->addWidget(group);
      m_line = nullptr;
      break;
    }
    case ScriptKind::Text: {
      bound.caption = new QLabel(QString::fromStdString(row.caption) + QStringLiteral(":"), page);
      auto* w = new QLineEdit(page);
      w->setObjectName(name);
      if (row.input != SetupInput::Any) {
        const QString pattern = row.input == SetupInput::Signed
                                    ? QStringLiteral("-?[0-9]{0,3}|[0-9]{0,4}")
                                    : QStringLiteral("[0-9]{0,4}");
        w->setValidator(new QRegularExpressionValidator(QRegularExpression(pattern), w));
        w->setMaximumWidth(w->fontMetrics().horizontalAdvance(QStringLiteral("0")) * 8);
      }
      bound.caption->setBuddy(w);
      TextBox* d = &DataOf<TextBox>(m_data, row);
      connect(w, &QLineEdit::textEdited, this, [d](const QString& t) { d->text = FromQString(t); });
      placeOnLine(layout, row, bound.caption, w);
      bound.widgets.push_back(w);
      break;
    }
    case ScriptKind::Combo: {
      bound.caption = new QLabel(QString::fromStdString(row.caption) + QStringLiteral(":"), page);
      auto* w = new QComboBox(page);
      w->setObjectName(name);
      w->setEditable(true);
      w->setInsertPolicy(QComboBox::NoInsert);
      w->setMinimumContentsLength(12);
      bound.caption->setBuddy(w);
      ComboBox* d = &DataOf<ComboBox>(m_data, row);
      connect(w, &QComboBox::editTextChanged, this,
              [d](const QString& t) { d->text = FromQString(t); });
      connect(w, &QComboBox::currentIndexChanged, this, [d, w](int i) {
        d->listIndex = i;
        if (i >= 0) d->text = FromQString(w->itemText(i));
      });
      placeOnLine(layout, row, bound.caption, w);
      bound.widgets.push_back(w);
      break;
    }
    case ScriptKind::Button:
      break;
  }
  for (QWidget* w : bound.widgets)
    watch(w, row.name);
  m_bound.push_back(bound);
}

void SetupView::placeOnLine(QVBoxLayout* layout, const SetupControl& row, QWidget* label,
                            QWidget* field) {
  const bool wide = row.kind == ScriptKind::Text && row.input == SetupInput::Any;
  if (!row.sameLine || m_line == nullptr) {
    m_line = new QHBoxLayout;
    layout->addLayout(m_line);
    // A free text fills its line; everything else keeps its own width.
    m_lineStretches = !wide;
    if (m_lineStretches) m_line->addStretch(1);
  } else {
    m_line->insertSpacing(m_line->count() - (m_lineStretches ? 1 : 0), 12);
  }
  const int at = m_line->count() - (m_lineStretches ? 1 : 0);
  if (label != nullptr) m_line->insertWidget(at, label);
  m_line->insertWidget(label != nullptr ? at + 1 : at, field, wide ? 1 : 0);
}

void SetupView::addColors(QVBoxLayout* layout, QWidget* page) {
  auto* group = new QGroupBox(tr("Colours"), page);
  auto* grid = new QGridLayout(group);
  const std::pair<Label*, const char*> examples[] = {
      {&m_data.lblExHeader, "lblExHeader"},   {&m_data.lblExData, "lblExData"},
      {&m_data.lblExDigi, "lblExDigi"},       {&m_data.lblExMessage, "lblExMessage"},
      {&m_data.lblExDataBox, "lblExDataBox"}, {&m_data.lblExConnect, "lblExConnect"}};
  QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  int at = 0;
  for (const auto& [data, name] : examples) {
    auto* l = new QLabel(group);
    l->setObjectName(QString::fromLatin1(name));
    l->setAutoFillBackground(true);
    l->setMargin(3);
    if (at < 4) l->setFont(fixed);
    grid->addWidget(l, at++, 0);
    m_examples.emplace_back(data, l);
  }
  // Each button beside the example it changes.
  const int rowOf[kSetupColors] = {0, 1, 0, 2, 3, 4, 4, 5, 5};
  const int columnOf[kSetupColors] = {1, 1, 2, 1, 1, 1, 2, 1, 2};
  for (const SetupControl& row : SetupControls()) {
    if (!IsMonitorColor(row)) continue;
    auto* b = new QPushButton(group);
    b->setObjectName(QString::fromStdString(row.name));
    b->setAutoDefault(false);
    const SetupControl* control = &row;
    connect(b, &QPushButton::clicked, this, [this, control]() {
      m_setup.Press(*control);
      refresh();
    });
    grid->addWidget(b, rowOf[row.index], columnOf[row.index]);
    watch(b, row.name);
    m_bound.push_back({&row, {b}, nullptr});
  }
  grid->setColumnStretch(0, 1);
  layout->addWidget(group);
}

void SetupView::watch(QWidget* widget, const std::string& name) {
  m_names[widget] = name;
  widget->installEventFilter(this);
}

bool SetupView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Enter) {
    const auto it = m_names.find(watched);
    if (it != m_names.end()) {
      m_setup.HoverOptie(it->second);
      refresh();
    }
  }
  return QDialog::eventFilter(watched, event);
}

void SetupView::changed(const SetupControl& row) {
  m_setup.Changed(row);
  refresh();
}

void SetupView::render(const Bound& bound) {
  const SetupControl& row = *bound.row;
  std::visit(
      [&](auto member) {
        auto& d = m_data.*member;
        using Held = std::remove_cvref_t<decltype(d)>;
        QWidget* first = bound.widgets.front();
        const QSignalBlocker block(first);
        if constexpr (std::is_same_v<Held, CheckBox>) {
          auto* w = static_cast<QCheckBox*>(first);
          w->setText(ToQString(d.caption));
          w->setChecked(d.checked());
          RenderControl(w, d);
        } else if constexpr (std::is_same_v<Held, OptionButton>) {
          auto* w = static_cast<QRadioButton*>(first);
          w->setText(ToQString(d.caption));
          w->setChecked(d.value);
          RenderControl(w, d);
        } else if constexpr (std::is_same_v<Held, TextBox>) {
          auto* w = static_cast<QLineEdit*>(first);
          if (w->text() != ToQString(d.text)) w->setText(ToQString(d.text));
          RenderMaxLength(w, d.maxLength);
          RenderControl(w, d);
        } else if constexpr (std::is_same_v<Held, ComboBox>) {
          auto* w = static_cast<QComboBox*>(first);
          RenderComboItems(w, d);
          if (w->currentText() != ToQString(d.text)) w->setEditText(ToQString(d.text));
          RenderControl(w, d);
        } else if constexpr (std::is_same_v<Held, OptionRow>) {
          first->parentWidget()->setEnabled(d.enabled());
          for (std::size_t i = 0; i < bound.widgets.size() && i < d.rows.size(); ++i) {
            auto* w = static_cast<QRadioButton*>(bound.widgets[i]);
            const QSignalBlocker rowBlock(w);
            w->setText(ToQString(d.rows[i].caption));
            w->setChecked(d.rows[i].value);
            RenderControl(w, d.rows[i]);
          }
        } else if constexpr (std::is_same_v<Held, Button>) {
          auto* w = static_cast<QPushButton*>(first);
          w->setText(ToQString(d.caption));
          RenderControl(w, d);
        } else {
          const Button& b = d[static_cast<std::size_t>(row.index)];
          auto* w = static_cast<QPushButton*>(first);
          w->setText(ToQString(b.caption));
          RenderControl(w, b);
        }
      },
      row.member);
  if (bound.caption != nullptr) bound.caption->setEnabled(bound.widgets.front()->isEnabled());
}

void SetupView::refresh() {
  setWindowTitle(ToQString(m_data.form.caption));
  {
    const QSignalBlocker block(m_pages);
    m_pages->setCurrentRow(m_data.page);
  }
  m_stack->setCurrentIndex(m_data.page);
  for (const Bound& bound : m_bound)
    render(bound);
  for (const auto& [data, label] : m_examples)
    RenderLabel(label, *data);
  if (m_heardExample != nullptr)
    m_heardExample->setText(ToQStringLines(m_data.lblMHeardExample.caption));
  m_help->setText(ToQString(m_data.lblHelp.caption));
  m_apply->setText(ToQString(m_data.Command1.caption));
  RenderControl(m_apply, m_data.Command1);
  m_cancel->setText(ToQString(m_data.Command2.caption));
  RenderControl(m_cancel, m_data.Command2);
}

}  // namespace tesk
