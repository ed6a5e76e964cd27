#pragma once

#include "Platform/Linux/Qt/Windows/QuickView.h"

#include "Instruments/Process.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QQuickPaintedItem>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace tocca::platform::linux {

/// Lets Qt work until `predicate` holds; false when that takes too long.
template <class Predicate>
bool runUntil(Predicate predicate)
{
    constexpr int kDeadline = 20000; // milliseconds
    constexpr int kBeat = 5;
    QElapsedTimer time;
    time.start();
    QTimer beat;
    beat.start(kBeat);
    while (!predicate()) {
        if (time.hasExpired(kDeadline)) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

/// What a command prints; Qt's event loop runs meanwhile.
inline std::string outputOf(const std::vector<std::string>& command)
{
    instruments::Process process(command);
    runUntil([&] { return process.waitForExit(std::chrono::milliseconds(1)).has_value(); });
    return process.output();
}

inline bool contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

/// A property of a window, of the root window when `id` is 0, as a person would print it.
inline std::string property(unsigned long long id, const std::string& name)
{
    return id == 0 ? outputOf({"xprop", "-root", name})
                   : outputOf({"xprop", "-id", std::to_string(id), name});
}

/// A plain area in one colour.
class Swatch : public QQuickPaintedItem {
public:
    explicit Swatch(QQuickItem& parent)
        : QQuickPaintedItem(&parent)
    {
        setFillColor(Qt::red);
    }

    void paint(QPainter* /*painter*/) override {}
};

/// Content that tells whether its item has been made.
struct Content {
    QQuickItem* item = nullptr; ///< null until it was made

    std::unique_ptr<View> view()
    {
        return std::make_unique<QuickView>([this](QQuickItem& parent) { return item = new Swatch(parent); });
    }

    [[nodiscard]] QQuickWindow* window() const { return item != nullptr ? item->window() : nullptr; }

    [[nodiscard]] unsigned long long id() const { return window()->winId(); }

    [[nodiscard]] bool isShown() const { return window() != nullptr && window()->isExposed(); }
};

} // namespace tocca::platform::linux
