#include "Platform/Linux/Qt/ApplicationIcon.h"

namespace tocca::platform::linux {

QIcon applicationIcon()
{
    return QIcon::fromTheme(QStringLiteral("org.tocca.Tocca"),
                            QIcon(QStringLiteral(":/org.tocca/org.tocca.Tocca.svg")));
}

} // namespace tocca::platform::linux
