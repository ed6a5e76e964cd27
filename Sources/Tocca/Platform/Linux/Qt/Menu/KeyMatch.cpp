#include "Platform/Linux/Qt/Menu/KeyMatch.h"

#include <QKeyEvent>
#include <QString>

namespace tocca::platform::linux {

namespace {

bool needsShift(const KeyEquivalent& key)
{
    const QString text = QString::fromStdString(key.key);
    return text != text.toLower();
}

} // namespace

bool matches(const KeyEquivalent& key, const QKeyEvent& event)
{
    if (key.key.size() != 1) {
        return false;
    }
    Qt::KeyboardModifiers wanted;
    wanted.setFlag(Qt::ControlModifier, key.command);
    wanted.setFlag(Qt::AltModifier, key.option);
    wanted.setFlag(Qt::MetaModifier, key.control);
    wanted.setFlag(Qt::ShiftModifier, needsShift(key));
    return event.key() == QString::fromStdString(key.key).toUpper().at(0).unicode() &&
           (event.modifiers() & ~Qt::KeypadModifier) == wanted;
}

QStringList busShortcut(const KeyEquivalent& key)
{
    QStringList words;
    if (key.key.empty()) {
        return words;
    }
    const auto add = [&words](bool isPart, const char* word) {
        if (isPart) {
            words.append(QLatin1String(word));
        }
    };
    add(key.command, "Control");
    add(key.option, "Alt");
    add(key.control, "Super");
    add(needsShift(key), "Shift");
    words.append(QString::fromStdString(key.key).toLower());
    return words;
}

} // namespace tocca::platform::linux
