#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QtGlobal>
#include <algorithm>
#include <cassert>
#include <utility>

#include "platform/dialog.h"
#include "platform/qt/controls.h"
#include "platform/qt/open_dialog.h"

namespace quillet {
namespace {

QWidget& WidgetOf(Dialog& dialog, int control) {
    assert(dialog.controls.contains(control));
    return *dialog.controls.at(control).widget;
}

// The control as a widget of that kind; the template says that it is one.
template <typename Widget>
Widget& As(Dialog& dialog, int control) {
    QWidget& widget = WidgetOf(dialog, control);
    assert(dynamic_cast<Widget*>(&widget) != nullptr);
    return static_cast<Widget&>(widget);
}

bool IsLabelOrButton(const QWidget& widget) {
    return qobject_cast<const QLabel*>(&widget) != nullptr ||
           qobject_cast<const QAbstractButton*>(&widget) != nullptr;
}

QModelIndex LineAt(LineList& list, int line) { return list.model()->index(line, 0); }

void ChooseLine(QWidget& widget, int line) {
    if (auto* dropDown = qobject_cast<QComboBox*>(&widget)) return dropDown->setCurrentIndex(line);
    auto& list = static_cast<LineList&>(widget);
    const QModelIndex index = LineAt(list, line);
    if (!index.isValid()) return list.selectionModel()->clear();
    // From far away it comes to the top, with what follows it in view.
    const bool isInView = list.viewport()->rect().contains(list.visualRect(index));
    list.setCurrentIndex(index);
    list.scrollTo(index, isInView ? QListView::EnsureVisible : QListView::PositionAtTop);
}

}  // namespace

std::string ControlText(Dialog& dialog, int control) {
    QWidget& widget = WidgetOf(dialog, control);
    if (const auto* area = dynamic_cast<TextArea*>(&widget)) return area->Text();
    if (IsLabelOrButton(widget)) return dialog.controls.at(control).text;
    QString text;
    if (const auto* edit = qobject_cast<QLineEdit*>(&widget)) text = edit->text();
    if (const auto* dropDown = qobject_cast<QComboBox*>(&widget)) text = dropDown->currentText();
    if (const auto* list = dynamic_cast<LineList*>(&widget)) text = list->currentIndex().data().toString();
    return FromQString(text);
}

void SetControlText(Dialog& dialog, int control, std::string_view text) {
    const Setting setting(dialog);
    QWidget& widget = WidgetOf(dialog, control);
    if (auto* area = dynamic_cast<TextArea*>(&widget)) area->SetText(text);
    if (auto* edit = qobject_cast<QLineEdit*>(&widget)) edit->setText(ToQString(text));
    if (!IsLabelOrButton(widget)) return;
    dialog.controls.at(control).text = text;
    // Where the toolkit looks for an access key, "&&" stands for "&".
    QString shown = ToQString(text);
    auto* label = qobject_cast<QLabel*>(&widget);
    if (label == nullptr || label->buddy() != nullptr) {
        shown.replace(QLatin1Char('&'), QStringLiteral("&&"));
    }
    if (label != nullptr) return label->setText(shown);
    static_cast<QAbstractButton&>(widget).setText(shown);
}

void SetProgress(Dialog& dialog, int control, int percent) {
    As<QProgressBar>(dialog, control).setValue(std::clamp(percent, 0, 100));
}

bool IsChecked(Dialog& dialog, int control) { return As<QAbstractButton>(dialog, control).isChecked(); }

void SetChecked(Dialog& dialog, int control, bool checked) {
    const Setting setting(dialog);
    As<QAbstractButton>(dialog, control).setChecked(checked);
}

void SetPicture(Dialog& dialog, int control, const Picture* picture) {
    As<PictureArea>(dialog, control).SetPicture(picture);
}

void SetLines(Dialog& dialog, int control, std::size_t count,
              std::function<std::string(std::size_t)> textOf) {
    const Setting setting(dialog);
    QWidget& widget = WidgetOf(dialog, control);
    LinesOf(widget).SetLines(count, std::move(textOf));
    ChooseLine(widget, count == 0 ? -1 : 0);
}

int Choice(Dialog& dialog, int control) {
    QWidget& widget = WidgetOf(dialog, control);
    if (const auto* dropDown = qobject_cast<QComboBox*>(&widget)) return dropDown->currentIndex();
    return As<LineList>(dialog, control).currentIndex().row();
}

void SetChoice(Dialog& dialog, int control, int line) {
    const Setting setting(dialog);
    ChooseLine(WidgetOf(dialog, control), line);
}

void ShowControl(Dialog& dialog, int control, bool shown) {
    const Setting setting(dialog);
    WidgetOf(dialog, control).setVisible(shown);
}

void EnableControl(Dialog& dialog, int control, bool enabled) {
    const Setting setting(dialog);
    WidgetOf(dialog, control).setEnabled(enabled);
}

void FocusControl(Dialog& dialog, int control) {
    const Setting setting(dialog);
    WidgetOf(dialog, control).setFocus();
}

void SelectText(Dialog& dialog, int control, std::size_t from, std::size_t count) {
    QWidget& widget = WidgetOf(dialog, control);
    if (auto* area = dynamic_cast<TextArea*>(&widget)) return area->Select(from, count);
    auto& edit = As<QLineEdit>(dialog, control);
    const auto length = static_cast<std::size_t>(edit.text().size());
    from = std::min(from, length);
    edit.setSelection(static_cast<int>(from), static_cast<int>(std::min(count, length - from)));
}

void LimitText(Dialog& dialog, int control, std::size_t characters) {
    QWidget& widget = WidgetOf(dialog, control);
    if (auto* area = dynamic_cast<TextArea*>(&widget)) return area->SetLimit(characters);
    constexpr std::size_t kLongest = 32767;  // of the toolkit's edits
    As<QLineEdit>(dialog, control).setMaxLength(static_cast<int>(std::min(characters, kLongest)));
}

}  // namespace quillet
