#include "UI/ViewTest.h"

#include "UI/Quick/QmlView.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointingDevice>
#include <QTest>
#include <QWheelEvent>

namespace tocca::ui {
namespace {

constexpr int kPatience = 5000; // milliseconds

template <class Visit>
void eachItem(QQuickItem& root, const Visit& visit)
{
    visit(root);
    for (QQuickItem* child : root.childItems()) {
        eachItem(*child, visit);
    }
}

QAccessibleInterface* accessible(QQuickItem& item)
{
    return QAccessible::queryAccessibleInterface(&item);
}

QString nameOf(QQuickItem& item)
{
    if (!item.objectName().isEmpty()) {
        return item.objectName();
    }
    const auto* interface = accessible(item);
    return interface == nullptr ? QString() : interface->text(QAccessible::Name);
}

bool isInSight(const QQuickItem& item)
{
    return item.isVisible() && item.width() > 0 && item.height() > 0;
}

} // namespace

ViewTest::ViewTest()
{
    window.resize(360, 560);
}

void ViewTest::TearDown()
{
    qDeleteAll(views_);
}

QQuickItem* ViewTest::show(const QString& file, QObject& model, QSize size)
{
    window.resize(size);
    window.contentItem()->setSize(size);
    QQuickItem* view = makeQmlView(engine, file, model, *window.contentItem());
    views_.append(view);
    reduceMotion();
    window.show();
    window.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    settle();
    return view;
}

void ViewTest::reduceMotion()
{
    setReducesMotion(engine, true);
}

QQuickItem* ViewTest::item(const QString& objectName)
{
    QQuickItem* found = nullptr;
    eachItem(*window.contentItem(), [&](QQuickItem& candidate) {
        if (candidate.objectName() == objectName && candidate.isVisible()) {
            EXPECT_EQ(found, nullptr) << "two items named " << qPrintable(objectName);
            found = &candidate;
        }
    });
    EXPECT_NE(found, nullptr) << "no item named " << qPrintable(objectName);
    return found;
}

bool ViewTest::has(const QString& objectName)
{
    bool found = false;
    eachItem(*window.contentItem(), [&](QQuickItem& candidate) {
        found = found || (candidate.objectName() == objectName && candidate.isVisible());
    });
    return found;
}

QStringList ViewTest::texts(const QString& objectName)
{
    QStringList found;
    if (QQuickItem* root = item(objectName)) {
        eachItem(*root, [&](QQuickItem& candidate) {
            const QString text =
                candidate.inherits("QQuickText") ? candidate.property("text").toString() : QString();
            if (candidate.isVisible() && !text.isEmpty()) {
                found.append(text);
            }
        });
    }
    return found;
}

QVariant ViewTest::property(const QString& objectName, const char* name)
{
    QQuickItem* owner = item(objectName);
    return owner == nullptr ? QVariant() : owner->property(name);
}

void ViewTest::click(const QString& objectName)
{
    if (QQuickItem* target = item(objectName)) {
        focus(objectName);
        const QPointF middle = target->mapToScene(QPointF(target->width() / 2, target->height() / 2));
        EXPECT_TRUE(QRectF(QPointF(), window.size()).contains(middle)) << qPrintable(objectName);
        QTest::mouseClick(&window, Qt::LeftButton, Qt::NoModifier, middle.toPoint());
        settle();
    }
}

void ViewTest::focus(const QString& objectName)
{
    if (QQuickItem* target = item(objectName)) {
        target->forceActiveFocus(Qt::TabFocusReason);
        settle();
    }
}

void ViewTest::key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&window, key, modifiers);
    settle();
}

void ViewTest::type(const QString& text)
{
    for (const QChar letter : text) {
        QTest::sendKeyEvent(QTest::Click, &window, Qt::Key_unknown, letter, Qt::NoModifier);
    }
    settle();
}

void ViewTest::expectSwitches(std::initializer_list<Switch> switches)
{
    for (const auto& [name, setting] : switches) {
        SCOPED_TRACE(name);
        const bool before = setting.get();
        EXPECT_EQ(property(name, "checked").toBool(), before);
        click(name);
        EXPECT_EQ(setting.get(), !before);
        EXPECT_EQ(property(name, "checked").toBool(), !before);
        key(Qt::Key_Space);
        EXPECT_EQ(setting.get(), before);
        setting.set(!before);
        EXPECT_EQ(property(name, "checked").toBool(), !before);
    }
}

void ViewTest::wheel(const QString& objectName, double notches)
{
    if (QQuickItem* target = item(objectName)) {
        const QPointF middle = target->mapToScene(QPointF(target->width() / 2, target->height() / 2));
        QWheelEvent event(middle, middle, {}, QPoint(0, qRound(notches * 120)), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window, &event);
        settle();
    }
}

void ViewTest::swipe(const QString& objectName, int angle)
{
    static const QPointingDevice touchpad(
        QStringLiteral("touchpad"), 77, QInputDevice::DeviceType::TouchPad,
        QPointingDevice::PointerType::Finger,
        QInputDevice::Capability::Scroll | QInputDevice::Capability::PixelScroll, 2, 1);
    if (QQuickItem* target = item(objectName)) {
        const QPointF middle = target->mapToScene(QPointF(target->width() / 2, target->height() / 2));
        QWheelEvent event(middle, middle, {}, QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false, Qt::MouseEventNotSynthesized, &touchpad);
        QCoreApplication::sendEvent(&window, &event);
        settle();
    }
}

void ViewTest::repeat(Qt::Key key)
{
    for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent event(type, key, Qt::NoModifier, {}, true);
        QCoreApplication::sendEvent(&window, &event);
    }
    settle();
}

QStringList ViewTest::traversal()
{
    constexpr int kMostControls = 200;
    QStringList names;
    const QQuickItem* first = nullptr;
    for (int i = 0; i < kMostControls; ++i) {
        key(Qt::Key_Tab);
        QQuickItem* focused = window.activeFocusItem();
        if (focused == nullptr || focused == first) {
            return names;
        }
        first = first == nullptr ? focused : first;
        names.append(nameOf(*focused));
    }
    ADD_FAILURE() << "the focus never returns";
    return names;
}

QStringList ViewTest::unnamedControls()
{
    QStringList unnamed;
    eachItem(*window.contentItem(), [&](QQuickItem& candidate) {
        if (candidate.activeFocusOnTab() && isInSight(candidate)) {
            auto* interface = accessible(candidate);
            if (interface == nullptr || interface->text(QAccessible::Name).isEmpty() ||
                interface->role() == QAccessible::NoRole || interface->role() == QAccessible::Client) {
                unnamed.append(candidate.objectName() + QStringLiteral(" (") +
                               QString::fromLatin1(candidate.metaObject()->className()) +
                               QStringLiteral(")"));
            }
        }
    });
    return unnamed;
}

bool ViewTest::eventually(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, kPatience);
}

void ViewTest::settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    // Two pictures alike: nothing moves any more.
    QImage before;
    EXPECT_TRUE(eventually([&] {
        const QImage now = grab();
        const bool isAtRest = now == before;
        before = now;
        return isAtRest;
    })) << "the view does not come to rest";
}

QImage ViewTest::grab()
{
    return window.grabWindow();
}

} // namespace tocca::ui
