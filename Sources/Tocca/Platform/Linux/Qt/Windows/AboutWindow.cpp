#include "Platform/Linux/Qt/Windows/AboutWindow.h"

#include "Platform/Linux/Qt/ApplicationIcon.h"
#include "Platform/Linux/Qt/Windows/QuickView.h"
#include "Platform/Linux/Qt/Windows/WindowActivation.h"
#include "Platform/Linux/Qt/XDesktop.h"

#include <QKeyEvent>
#include <QPainter>
#include <QQmlComponent>
#include <QQuickPaintedItem>
#include <QScreen>
#include <QUrl>

#include <memory>

namespace tocca::platform::linux {

namespace {

constexpr QSize kSize(320, 272);
const QColor kGround(246, 248, 250);

/// The program's icon, as large as its parent.
class IconDrawing final : public QQuickPaintedItem {
public:
    explicit IconDrawing(QQuickItem& parent)
        : QQuickPaintedItem(&parent)
    {
        setSize(parent.size());
    }

    void paint(QPainter* painter) override
    {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        applicationIcon().paint(painter, boundingRect().toRect());
    }
};

} // namespace

AboutWindow::AboutWindow(OwnWindows& family)
    : ContentWindow(family, Kind::ordinary)
{
    setFlags(Qt::Dialog);
    setTitle(QStringLiteral("About Tocca"));
    setColor(kGround);
    setMinimumSize(kSize);
    setMaximumSize(kSize);
    resize(kSize);
    setContent(std::make_unique<QuickView>([this](QQuickItem& parent) { return makeContent(parent); }));
}

AboutWindow::~AboutWindow()
{
    setContent(nullptr); // before the engine
}

void AboutWindow::showInFront()
{
    if (!isVisible()) {
        XDesktop::adopt(*this);
        if (const QScreen* const place = screen()) {
            QRect frame({}, kSize);
            frame.moveCenter(place->availableGeometry().center());
            setPosition(frame.topLeft());
        }
        present();
    }
    bringToFront(*this);
}

QQuickItem* AboutWindow::makeContent(QQuickItem& parent)
{
    QQmlComponent component(&engine_, QUrl(QStringLiteral("qrc:/org.tocca/AboutWindow.qml")));
    auto* const item = qobject_cast<QQuickItem*>(component.createWithInitialProperties(
        {{QStringLiteral("version"), QStringLiteral(TOCCA_VERSION)}, {QStringLiteral("ground"), kGround}}));
    if (item != nullptr) {
        item->setParent(&parent);
        item->setParentItem(&parent);
        if (auto* const place = item->property("iconPlace").value<QQuickItem*>()) {
            new IconDrawing(*place); // which owns it
        }
    }
    return item;
}

bool AboutWindow::handleKey(const QKeyEvent& event)
{
    const bool closes = event.key() == Qt::Key_Escape;
    if (closes) {
        hide();
    }
    return closes;
}

} // namespace tocca::platform::linux
