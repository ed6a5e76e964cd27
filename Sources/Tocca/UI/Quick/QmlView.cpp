#include "UI/Quick/QmlView.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QUrl>
#include <QVariant>

namespace tocca::ui {

namespace {

/// Where the program's own module is; this version of the engine does not look there by itself.
QString modules()
{
    return QStringLiteral("qrc:/qt/qml");
}

} // namespace

QQuickItem* makeQmlView(QQmlEngine& engine, const QString& file, QObject& model, QQuickItem& parent)
{
    if (!engine.importPathList().contains(modules())) {
        engine.addImportPath(modules());
    }
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

} // namespace tocca::ui
