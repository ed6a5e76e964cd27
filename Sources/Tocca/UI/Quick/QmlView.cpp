#include "UI/Quick/QmlView.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QUrl>
#include <QVariant>

#include <memory>

namespace tocca::ui {

namespace {

/// Where the program's own module is; this version of the engine does not look there by itself.
QString modules()
{
    return QStringLiteral("qrc:/qt/qml");
}

void findModules(QQmlEngine& engine)
{
    if (!engine.importPathList().contains(modules())) {
        engine.addImportPath(modules());
    }
}

} // namespace

QQuickItem* makeQmlView(QQmlEngine& engine, const QString& file, QObject& model, QQuickItem& parent)
{
    findModules(engine);
    QQmlComponent component(&engine, QUrl(modules() + QStringLiteral("/Tocca/UI/") + file));
    auto* item = qobject_cast<QQuickItem*>(
        component.createWithInitialProperties({{QStringLiteral("model"), QVariant::fromValue(&model)}}));
    if (item == nullptr) {
        qFatal("%s", qPrintable(component.errorString()));
    }
    item->setParent(&parent);
    item->setParentItem(&parent);
    item->setSize(parent.size());
    QObject::connect(&parent, &QQuickItem::widthChanged, item,
                     [item, &parent] { item->setWidth(parent.width()); });
    QObject::connect(&parent, &QQuickItem::heightChanged, item,
                     [item, &parent] { item->setHeight(parent.height()); });
    return item;
}

void setReducesMotion(QQmlEngine& engine, bool reducesMotion)
{
    findModules(engine);
    // A singleton that is written in QML has no type that could be asked for it.
    QQmlComponent lookup(&engine);
    lookup.setData("import QtQml; import Tocca.UI; QtObject { readonly property QtObject theme: Theme }", {});
    const std::unique_ptr<QObject> found(lookup.create());
    if (found == nullptr) {
        qFatal("%s", qPrintable(lookup.errorString()));
    }
    found->property("theme").value<QObject*>()->setProperty("reducesMotion", reducesMotion);
}

} // namespace tocca::ui
