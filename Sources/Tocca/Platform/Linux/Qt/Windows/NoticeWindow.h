#pragma once

#include <QQmlEngine>
#include <QString>

#include <memory>

class QQuickWindow;

namespace tocca::platform::linux {

/// A small window that says something until it is closed: by its button, Return, Escape or the window manager. Threads: main.
class NoticeWindow {
public:
    NoticeWindow();
    ~NoticeWindow();

    NoticeWindow(const NoticeWindow&) = delete;
    NoticeWindow& operator=(const NoticeWindow&) = delete;

    /// Shows the window, or what it says now when it is open, in front of the others.
    void show(const QString& title, const QString& text);

private:
    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> window_;
};

} // namespace tocca::platform::linux
