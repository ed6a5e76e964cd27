#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QUrl>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

class QQuickWindow;

namespace tocca::platform::linux {

/// Qt's own dialog for choosing a folder. Threads: main.
class FolderDialog : public QObject {
    Q_OBJECT

public:
    using Completion = std::function<void(std::optional<std::filesystem::path>)>;

    /// Shows the dialog; null when Qt's dialogs are not installed. `completion` is called once, later.
    [[nodiscard]] static std::unique_ptr<FolderDialog> open(const QString& prompt, Completion completion);

    ~FolderDialog() override;

    void bringToFront();

    /// Keeps the dialog inside its window, for from 6.8 on Qt would open another one for it, and brings it to the front once it is shown.
    bool eventFilter(QObject* window, QEvent* event) override;

private:
    explicit FolderDialog(Completion completion);

    Q_SLOT void choose(const QUrl& folder);
    Q_SLOT void cancel();
    void finish(const std::optional<std::filesystem::path>& folder);

    Completion completion_;
    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> window_;
    bool hasComeToFront_ = false;
};

} // namespace tocca::platform::linux
