#include "UI/Access/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace tocca::ui {

void Clipboard::copy(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}

} // namespace tocca::ui
