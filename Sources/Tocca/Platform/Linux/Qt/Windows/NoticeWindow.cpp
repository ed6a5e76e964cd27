#include "Platform/Linux/Qt/Windows/NoticeWindow.h"

#include "Platform/Linux/Qt/Windows/WindowActivation.h"
#include "Platform/Linux/Qt/XDesktop.h"

#include <QQmlComponent>
#include <QQuickWindow>
#include <QUrl>

namespace tocca::platform::linux {

NoticeWindow::NoticeWindow()
{
    QQmlComponent component(&engine_, QUrl(QStringLiteral("qrc:/org.tocca/NoticeWindow.qml")));
    QObject* const root = component.create();
    window_.reset(qobject_cast<QQuickWindow*>(root));
    Q_ASSERT(window_ != nullptr);
}

NoticeWindow::~NoticeWindow() = default;

void NoticeWindow::show(const QString& title, const QString& text)
{
    window_->setTitle(title);
    window_->setProperty("text", text);
    if (!window_->isVisible()) {
        XDesktop::adopt(*window_);
        window_->show();
    }
    bringToFront(*window_);
}

} // namespace tocca::platform::linux
