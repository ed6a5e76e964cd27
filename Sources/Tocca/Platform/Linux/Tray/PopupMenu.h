#pragma once

#include "Platform/Linux/Tray/MenuNode.h"

#include <QFont>
#include <QRasterWindow>

namespace tocca::platform::linux {

/// The icon's menu as a window of our own, for trays that show none. A choice, Escape, or a click elsewhere closes it.
/// Threads: main.
class PopupMenu : public QRasterWindow {
public:
    PopupMenu();

    /// Shows the entries of `menu`, submenus left out, at `place` on the screen.
    void popUp(const MenuNode& menu, const QPoint& place);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] QRect rowAt(int index) const;
    [[nodiscard]] int indexAt(const QPoint& point) const; // −1 where no entry can be chosen
    void select(int index);
    void step(int direction);
    void chooseSelected();
    void close();

    std::vector<MenuNode> entries_;
    QFont font_;
    int selected_ = -1;
};

} // namespace tocca::platform::linux
