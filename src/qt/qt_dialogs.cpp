// Qt's standard dialogs behind the station's boxes.
#include "qt/qt_dialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include "qt/qt_text.h"

namespace tesk {

namespace {

QWidget* Parent() {
  return QApplication::activeWindow();
}

QMessageBox::Icon ToQtIcon(MsgIcon icon) {
  switch (icon) {
    case MsgIcon::Critical:
      return QMessageBox::Critical;
    case MsgIcon::Question:
      return QMessageBox::Question;
    case MsgIcon::Exclamation:
      return QMessageBox::Warning;
    case MsgIcon::Information:
      return QMessageBox::Information;
    case MsgIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

struct QtButton {
  QMessageBox::StandardButton button;
  MsgResult result;
};

std::vector<QtButton> ButtonsOf(MsgButtons b) {
  switch (b) {
    case MsgButtons::Ok:
      return {{QMessageBox::Ok, MsgResult::Ok}};
    case MsgButtons::OkCancel:
      return {{QMessageBox::Ok, MsgResult::Ok}, {QMessageBox::Cancel, MsgResult::Cancel}};
    case MsgButtons::YesNo:
      return {{QMessageBox::Yes, MsgResult::Yes}, {QMessageBox::No, MsgResult::No}};
    case MsgButtons::YesNoCancel:
      return {{QMessageBox::Yes, MsgResult::Yes},
              {QMessageBox::No, MsgResult::No},
              {QMessageBox::Cancel, MsgResult::Cancel}};
    case MsgButtons::RetryCancel:
      return {{QMessageBox::Retry, MsgResult::Retry}, {QMessageBox::Cancel, MsgResult::Cancel}};
  }
  return {{QMessageBox::Ok, MsgResult::Ok}};
}

}  // namespace

MsgResult QtDialogs::msgBox(const std::string& text, MsgButtons buttons, MsgIcon icon,
                            const std::string& title) {
  QMessageBox box(ToQtIcon(icon), ToQString(title), ToQStringLines(text), QMessageBox::NoButton,
                  Parent());
  const std::vector<QtButton> set = ButtonsOf(buttons);
  QMessageBox::StandardButtons all;
  for (const QtButton& b : set)
    all |= b.button;
  box.setStandardButtons(all);
  box.setDefaultButton(set.front().button);  // the first button is the default, as ever
  box.exec();
  const QAbstractButton* clicked = box.clickedButton();
  for (const QtButton& b : set) {
    if (clicked == box.button(b.button)) return b.result;
  }
  // Closed by the window's close button or Escape: the box's cancel (or its only) answer.
  return set.size() == 1 ? set.front().result : set.back().result;
}

std::string QtDialogs::inputBox(const std::string& prompt, const std::string& title,
                                const std::string& defaultText) {
  QInputDialog dialog(Parent());
  dialog.setWindowTitle(ToQString(title));
  dialog.setLabelText(ToQStringLines(prompt));
  dialog.setTextValue(ToQString(defaultText));
  dialog.setInputMode(QInputDialog::TextInput);
  if (dialog.exec() != QDialog::Accepted) return "";
  return FromQString(dialog.textValue());
}

QString ToQtFileFilter(const std::string& filter) {
  const QStringList parts = ToQString(filter).split(QLatin1Char('|'));
  QStringList out;
  for (int i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
    patterns.replace(QStringLiteral("*.*"), QStringLiteral("*"));
    // A description that already shows its patterns in brackets keeps one pair, the real one.
    QString name = parts[i].trimmed();
    const qsizetype open = name.lastIndexOf(QLatin1Char('('));
    if (name.endsWith(QLatin1Char(')')) && open > 0) name = name.left(open).trimmed();
    out << name + QStringLiteral(" (") + patterns + QLatin1Char(')');
  }
  return out.join(QStringLiteral(";;"));
}

std::string QtDialogs::fileOpen(const std::string& title, const std::string& filter,
                                const std::string& folder) {
  return FromQString(QFileDialog::getOpenFileName(Parent(), ToQString(title), ToQString(folder),
                                                  ToQtFileFilter(filter)));
}

std::string QtDialogs::fileSave(const std::string& title, const std::string& filter,
                                const std::string& folder, const std::string& name) {
  QString start = ToQString(folder);
  if (!name.empty()) start += (start.isEmpty() ? QString() : QStringLiteral("/")) + ToQString(name);
  return FromQString(
      QFileDialog::getSaveFileName(Parent(), ToQString(title), start, ToQtFileFilter(filter)));
}

std::optional<Color> QtDialogs::chooseColor(Color initial) {
  const QColor c = QColorDialog::getColor(ToQColor(initial), Parent());
  if (!c.isValid()) return std::nullopt;
  return FromQColor(c);
}

}  // namespace tesk
