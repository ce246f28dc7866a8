// The controls of dialogs as widgets of the toolkit: those that it has, and those that need something more.
//
// The widgets know nothing of dialogs; dialog.cpp connects them, dialog_controls.cpp reads and sets them.
#pragma once

#include <QAbstractListModel>
#include <QAbstractSpinBox>
#include <QImage>
#include <QListView>
#include <QPlainTextEdit>
#include <QWidget>
#include <cstddef>
#include <functional>
#include <string>

#include "platform/dialog.h"

class QComboBox;

namespace quillet {

// Lines that are asked for as they come into view: any number of them costs nothing.
class LineModel : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    void SetLines(std::size_t count, std::function<std::string(std::size_t)> lineText);
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    int lineCount = 0;
    std::function<std::string(std::size_t)> textOf;
};

class LineList : public QListView {
  public:
    explicit LineList(QWidget* parent);
    void SetHeight(int lines);
    QSize sizeHint() const override;

    std::function<void()> onChosen;  // Enter; a double click is a signal of the toolkit
    // The line that is the current one already was clicked. That, too, is a choice.
    std::function<void()> onSameLine;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};

// Text of many lines, which end with CR LF on the program's side.
class TextArea : public QPlainTextEdit {
  public:
    explicit TextArea(QWidget* parent);
    std::string Text() const;
    void SetText(std::string_view text);
    void Select(std::size_t from, std::size_t count);
    void SetLimit(std::size_t characters) { limit = characters; }
    QSize sizeHint() const override;

  private:
    void KeepToLimit();
    int PositionOf(std::size_t character) const;  // of Text(), among those of the toolkit

    std::size_t limit = kAll;
};

// A picture, stretched to the area.
class PictureArea : public QWidget {
  public:
    explicit PictureArea(QWidget* parent);
    void SetPicture(const Picture* picture);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QImage image;
    QImage doubled;  // null: there is none
};

// The arrows of a number that stands elsewhere.
class ArrowPair : public QAbstractSpinBox {
  public:
    explicit ArrowPair(QWidget* parent);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    void stepBy(int steps) override;

    std::function<void(bool up)> onStep;

  protected:
    StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
};

// The widget of a control, of the size that the template says.
QWidget* MakeWidget(const ControlTemplate& control, QWidget* parent);

// The lines of a list or drop-down.
LineModel& LinesOf(QWidget& listOrDropDown);

}  // namespace quillet
