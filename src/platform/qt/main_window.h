// The main window as the toolkit sees it: a menu bar above a canvas of fixed size. Turns what the toolkit
// tells into messages.
//
// Owned by window.cpp, which shows on it what the program drew.
#pragma once

#include <QVBoxLayout>
#include <QWidget>
#include <array>

#include "platform/canvas.h"
#include "platform/geometry.h"

class QMenuBar;

namespace quillet {

// Shows the window's canvas.
class CanvasWidget : public QWidget {
  public:
    CanvasWidget(QWidget* parent, int unitsZoom);

    void SetExtent(Size client);
    Point LastPointer() const { return pointer; }  // units; as of the last event
    bool HoldsButton() const { return pressed[0] || pressed[1]; }
    // Buttons whose release another window got count as released.
    void NoticeLostReleases();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    Point ToUnits(QPointF position) const;
    void PostPress(const QMouseEvent& event);

    int zoom;
    Point pointer{-1, -1};
    std::array<bool, 2> pressed{};  // left, right: of those the program was told of
};

class MainWindow : public QWidget {
  public:
    MainWindow(const QString& title, int zoom);

    CanvasWidget& CanvasArea() { return *canvasArea; }
    void SetMenuBar(QMenuBar* menuBar);
    // The window around a client area of that size, its corner at that point of all screens together.
    void SetClient(Size client, QPoint place);

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    QVBoxLayout* column;
    CanvasWidget* canvasArea;
};

// Keeps typed keys and shortcuts from everybody while the pointer is captured, as long as a button is held.
class KeyBarrier : public QObject {
  public:
    explicit KeyBarrier(const CanvasWidget& canvasWidget);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    const CanvasWidget& canvasArea;
};

}  // namespace quillet
