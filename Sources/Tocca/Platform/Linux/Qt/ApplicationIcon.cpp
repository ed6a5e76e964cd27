#include "Platform/Linux/Qt/ApplicationIcon.h"

#include "Platform/Linux/System/ApplicationId.h"

namespace tocca::platform::linux {

QIcon applicationIcon()
{
    return QIcon::fromTheme(QLatin1String(kApplicationId),
                            QIcon(QStringLiteral(":/org.tocca/%1.svg").arg(QLatin1String(kApplicationId))));
}

} // namespace tocca::platform::linux
