#pragma once

#include <QRasterWindow>

namespace tocca::platform::linux {

/// The window that says what the program is: icon, name, version, licence. Escape and Ctrl+W close it. Threads: main.
class AboutWindow : public QRasterWindow {
public:
    AboutWindow();

    void showInFront();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace tocca::platform::linux
