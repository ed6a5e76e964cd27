#include "Platform/Linux/Qt/Windows/FolderDialog.h"

#include "Platform/Linux/Qt/Windows/WindowActivation.h"
#include "Platform/Linux/Qt/XDesktop.h"

#include <QChildEvent>
#include <QDir>
#include <QQmlComponent>
#include <QQuickWindow>

#include <utility>

namespace tocca::platform::linux {

FolderDialog::FolderDialog(Completion completion)
    : completion_(std::move(completion))
{}

FolderDialog::~FolderDialog() = default;

std::unique_ptr<FolderDialog> FolderDialog::open(const QString& prompt, Completion completion)
{
    // Not make_unique: the constructor is private.
    std::unique_ptr<FolderDialog> dialog(new FolderDialog(std::move(completion)));
    QQmlComponent component(&dialog->engine_, QUrl(QStringLiteral("qrc:/org.tocca/FolderDialog.qml")));
    QObject* const root = component.createWithInitialProperties(
        {{QStringLiteral("prompt"), prompt},
         {QStringLiteral("home"), QUrl::fromLocalFile(QDir::homePath())}});
    auto* const window = qobject_cast<QQuickWindow*>(root);
    if (window == nullptr) {
        delete root;
        return nullptr;
    }
    dialog->window_.reset(window);
    connect(window, SIGNAL(chosen(QUrl)), dialog.get(), SLOT(choose(QUrl)));
    connect(window, SIGNAL(cancelled()), dialog.get(), SLOT(cancel()));
    window->installEventFilter(dialog.get());
    XDesktop::adopt(*window);
    window->show();
    dialog->bringToFront();
    return dialog;
}

void FolderDialog::bringToFront()
{
    linux::bringToFront(*window_);
}

bool FolderDialog::eventFilter(QObject* window, QEvent* event)
{
    if (event->type() == QEvent::ChildAdded) {
        constexpr int kItem = 0; // Popup.Item
        static_cast<QChildEvent*>(event)->child()->setProperty("popupType", kItem);
    }
    if (event->type() == QEvent::Expose && !hasComeToFront_ && window_->isExposed()) {
        hasComeToFront_ = true;
        bringToFront(); // a window manager that had not taken it over yet has not heard the first time
    }
    return QObject::eventFilter(window, event);
}

void FolderDialog::choose(const QUrl& folder)
{
    finish(std::filesystem::path(folder.toLocalFile().toStdString()));
}

void FolderDialog::cancel()
{
    finish(std::nullopt);
}

void FolderDialog::finish(const std::optional<std::filesystem::path>& folder)
{
    auto completion = std::exchange(completion_, nullptr);
    if (!completion) {
        return; // hiding the window cancels once more
    }
    window_->hide();
    // Later, because `completion` ends this dialog, which is calling.
    QMetaObject::invokeMethod(
        this, [completion = std::move(completion), folder] { completion(folder); }, Qt::QueuedConnection);
}

} // namespace tocca::platform::linux
