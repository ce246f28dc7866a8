#include "platform/qt/controls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QTextBlock>
#include <QValidator>
#include <algorithm>
#include <array>
#include <utility>

#include "platform/qt/desktop.h"

namespace quillet {
namespace {

constexpr int kNarrowEdit = 16;     // characters: below, an edit does not grow with its column
constexpr int kNarrowDropDown = 8;  // characters, when the template says nothing

// Turns what Latin-1 lacks into what it has, as it is typed or pasted.
class LatinOnly : public QValidator {
  public:
    using QValidator::QValidator;
    State validate(QString& input, int&) const override {
        QString latin = InLatin1(input);
        for (QChar& character : latin) {
            if (!character.isPrint()) character = QLatin1Char(' ');
        }
        // Of another length the cursor would not fit any more.
        if (latin.size() == input.size()) input = latin;
        return Acceptable;
    }
};

int WidthOf(int characters, const QWidget& widget) {
    const QFontMetrics metrics = widget.fontMetrics();
    // Texts are of capitals and of small letters.
    return characters *
           (metrics.horizontalAdvance(QLatin1Char('N')) + metrics.horizontalAdvance(QLatin1Char('n'))) / 2;
}

int ScrollBarWidth(const QWidget& widget) {
    return widget.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &widget);
}

// The toolkit's idea of a size counts only where the template says nothing.
QSize SizeAsTold(const QWidget& widget, QSize toolkits) {
    const QSize told = widget.minimumSize();
    return {told.width() > 0 ? told.width() : toolkits.width(),
            told.height() > 0 ? told.height() : toolkits.height()};
}

void UseFixedPitch(QWidget& widget) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(widget.font().pointSizeF());
    widget.setFont(font);
}

QWidget* MakeLabel(const ControlTemplate& control, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(ToQString(control.text));
    if (control.width > 0) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        label->setMinimumWidth(WidthOf(control.width, *label));
        label->setMinimumHeight(std::max(control.height, 1) * label->fontMetrics().lineSpacing());
    }
    return label;
}

QWidget* MakeEdit(const ControlTemplate& control, QWidget* parent) {
    auto* edit = new QLineEdit(ToQString(control.text), parent);
    edit->setValidator(new LatinOnly(edit));
    if (control.fixedPitch) UseFixedPitch(*edit);
    if (control.width > 0) {
        const int frame =
            edit->sizeHint().width() - 17 * edit->fontMetrics().horizontalAdvance(QLatin1Char('x'));
        const int width = WidthOf(control.width, *edit) + std::max(frame, 0) + 4;
        edit->setMinimumWidth(width);
        if (control.width < kNarrowEdit) edit->setMaximumWidth(width);
    }
    return edit;
}

QWidget* MakeTextArea(const ControlTemplate& control, QWidget* parent) {
    auto* area = new TextArea(parent);
    area->setReadOnly(control.kind == ControlKind::ReadOnlyText);
    if (control.fixedPitch) {
        UseFixedPitch(*area);
        area->setLineWrapMode(QPlainTextEdit::NoWrap);
    }
    const int frame = 2 * (area->frameWidth() + static_cast<int>(area->document()->documentMargin()));
    if (control.width > 0) {
        area->setMinimumWidth(WidthOf(control.width, *area) + frame + ScrollBarWidth(*area));
    }
    if (control.height > 0) {
        area->setMinimumHeight(control.height * area->fontMetrics().lineSpacing() + frame);
    }
    if (area->isReadOnly()) {
        area->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }
    area->SetText(control.text);
    return area;
}

QWidget* MakeDropDown(const ControlTemplate& control, QWidget* parent) {
    auto* dropDown = new QComboBox(parent);
    dropDown->setModel(new LineModel(dropDown));
    auto* view = new QListView(dropDown);
    view->setUniformItemSizes(true);
    dropDown->setView(view);
    dropDown->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    dropDown->setMinimumContentsLength(control.width > 0 ? control.width : kNarrowDropDown);
    return dropDown;
}

QWidget* MakeList(const ControlTemplate& control, QWidget* parent) {
    auto* list = new LineList(parent);
    if (control.fixedPitch) UseFixedPitch(*list);
    if (control.width > 0) {
        list->setMinimumWidth(WidthOf(control.width, *list) + 2 * list->frameWidth() + ScrollBarWidth(*list));
    }
    if (control.height > 0) list->SetHeight(control.height);
    return list;
}

QWidget* MakePicture(const ControlTemplate& control, QWidget* parent) {
    auto* area = new PictureArea(parent);
    if (control.width > 0) area->setFixedWidth(control.width * UnitSize());
    if (control.height > 0) area->setFixedHeight(control.height * UnitSize());
    return area;
}

QWidget* MakeArrows(const ControlTemplate& control, QWidget* parent) {
    auto* arrows = new ArrowPair(parent);
    arrows->setAccessibleName(ToQString(control.text));
    return arrows;
}

QWidget* MakeProgress(const ControlTemplate& control, QWidget* parent) {
    auto* bar = new QProgressBar(parent);
    if (control.width > 0) bar->setMinimumWidth(WidthOf(control.width, *bar));
    bar->setRange(0, 100);
    bar->setValue(0);
    return bar;
}

template <typename Button>
QWidget* MakeButton(const ControlTemplate& control, QWidget* parent) {
    return new Button(ToQString(control.text), parent);
}

// By ControlKind.
constexpr std::array<QWidget* (*)(const ControlTemplate&, QWidget*), 13> kMakers{
    MakeLabel,                 // Label
    MakeEdit,                  // Edit
    MakeTextArea,              // TextBox
    MakeTextArea,              // ReadOnlyText
    MakeButton<QCheckBox>,     // Check
    MakeButton<QRadioButton>,  // Radio
    MakeButton<QPushButton>,   // Button
    MakeButton<QPushButton>,   // DefaultButton
    MakeDropDown,              // DropDown
    MakeList,                  // List
    MakePicture,               // Picture
    MakeArrows,                // Arrows
    MakeProgress,              // Progress
};

}  // namespace

QWidget* MakeWidget(const ControlTemplate& control, QWidget* parent) {
    return kMakers[static_cast<std::size_t>(control.kind)](control, parent);
}

LineModel& LinesOf(QWidget& listOrDropDown) {
    if (auto* dropDown = qobject_cast<QComboBox*>(&listOrDropDown)) {
        return static_cast<LineModel&>(*dropDown->model());
    }
    return static_cast<LineModel&>(*static_cast<LineList&>(listOrDropDown).model());
}

// --- Lines ---

void LineModel::SetLines(std::size_t count, std::function<std::string(std::size_t)> lineText) {
    beginResetModel();
    lineCount = static_cast<int>(count);
    textOf = std::move(lineText);
    endResetModel();
}

int LineModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : lineCount; }

QVariant LineModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole || !index.isValid() || index.row() >= lineCount || !textOf) return {};
    return ToQString(textOf(static_cast<std::size_t>(index.row())));
}

LineList::LineList(QWidget* parent) : QListView(parent) {
    setModel(new LineModel(this));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabKeyNavigation(false);
}

void LineList::SetHeight(int lines) {
    LineModel& model = LinesOf(*this);
    model.SetLines(1, [](std::size_t) { return "X"; });  // a line to measure
    const int lineHeight = sizeHintForRow(0);
    model.SetLines(0, {});
    setMinimumHeight(lines * lineHeight + 2 * frameWidth());
}

QSize LineList::sizeHint() const { return SizeAsTold(*this, QListView::sizeHint()); }

void LineList::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter || !currentIndex().isValid() || !onChosen) return QListView::keyPressEvent(event);
    onChosen();
}

void LineList::mousePressEvent(QMouseEvent* event) {
    const QModelIndex before = currentIndex();
    QListView::mousePressEvent(event);
    if (before.isValid() && before == indexAt(event->position().toPoint()) && onSameLine) onSameLine();
}

// --- Text of many lines ---

TextArea::TextArea(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { KeepToLimit(); });
}

std::string TextArea::Text() const {
    std::string text;
    for (const char character : FromQString(toPlainText())) {
        if (character == '\n') text += '\r';
        text += character;
    }
    return text;
}

void TextArea::SetText(std::string_view text) {
    // CR LF and CR alone end a line too.
    QString lines = ToQString(text);
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    setPlainText(lines);
    moveCursor(isReadOnly() ? QTextCursor::Start : QTextCursor::End);
}

QSize TextArea::sizeHint() const { return SizeAsTold(*this, QPlainTextEdit::sizeHint()); }

int TextArea::PositionOf(std::size_t character) const {
    const std::string before = Text().substr(0, character);
    const auto lineEnds = std::ranges::count(before, '\n');
    return static_cast<int>(static_cast<std::ptrdiff_t>(before.size()) - lineEnds);
}

void TextArea::Select(std::size_t from, std::size_t count) {
    QTextCursor cursor(document());
    const int end = PositionOf(kAll);
    const int first = std::min(PositionOf(from), end);
    const int last = count == kAll ? end : std::min(PositionOf(from + count), end);
    cursor.setPosition(first);
    cursor.setPosition(std::max(first, last), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

// Takes back as much of what was just put in, before the cursor, as is too much.
void TextArea::KeepToLimit() {
    const std::size_t length = Text().size();
    if (limit == kAll || length <= limit || isReadOnly()) return;
    QTextCursor cursor = textCursor();
    if (cursor.position() == 0) return;
    const auto excess = static_cast<int>(length - limit);
    // A line end counts twice: what is taken back may be less than it seems, and then it is done again.
    const int taken = std::clamp(excess / 2, 1, cursor.position());
    cursor.joinPreviousEditBlock();
    cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, taken);
    cursor.removeSelectedText();
    cursor.endEditBlock();  // the text has changed: here again
}

// --- Arrows ---

ArrowPair::ArrowPair(QWidget* parent) : QAbstractSpinBox(parent) {
    lineEdit()->setReadOnly(true);
    lineEdit()->setCursor(Qt::ArrowCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

// As wide as the arrows alone.
QSize ArrowPair::sizeHint() const {
    const QSize whole = QAbstractSpinBox::sizeHint();
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    option.rect = QRect({0, 0}, whole);
    const QRect arrow = style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this);
    const QRect edit =
        style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxEditField, this);
    return {whole.width() - edit.width() + 2, std::max(whole.height(), 2 * arrow.height())};
}

void ArrowPair::stepBy(int steps) {
    if (steps != 0 && onStep) onStep(steps > 0);
}

// --- Pictures ---

PictureArea::PictureArea(QWidget* parent) : QWidget(parent) {}

void PictureArea::SetPicture(const Picture* picture) {
    image = picture != nullptr ? ToQImage(picture->image) : QImage();
    doubled = picture != nullptr && picture->doubled ? ToQImage(*picture->doubled) : QImage();
    updateGeometry();
    update();
}

QSize PictureArea::sizeHint() const { return image.size() * UnitSize(); }

void PictureArea::paintEvent(QPaintEvent*) {
    const QSize pixels = size() * devicePixelRatio();
    const bool isEnlarged = pixels.width() > image.width() || pixels.height() > image.height();
    const QImage& source = isEnlarged && !doubled.isNull() ? doubled : image;
    if (source.isNull() || pixels.isEmpty()) return;
    QPainter(this).drawImage(rect(), source.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

}  // namespace quillet
