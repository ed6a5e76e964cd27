#include "UI/Studio/MainWindowViewModel.h"

#include "Platform/Host.h"

namespace tocca::ui {

MainWindowViewModel::MainWindowViewModel(const Controllers& controllers)
    : mainMenu_(controllers.host.mainMenu)
    , settings_(controllers)
    , status_(controllers)
    , showroom_(controllers)
    , stage_(controllers)
{}

QStringList MainWindowViewModel::tabTitles()
{
    QStringList titles;
    for (const StudioTab tab : StudioTab::allCases) {
        titles.append(toQString(tab.rawValue()));
    }
    return titles;
}

QStringList MainWindowViewModel::tabIcons()
{
    QStringList icons;
    for (const StudioTab tab : StudioTab::allCases) {
        icons.append(toQString(tab.icon()));
    }
    return icons;
}

void MainWindowViewModel::selectTab(int index)
{
    if (index >= 0 && index < static_cast<int>(StudioTab::allCases.size()) && index != selectedTab_) {
        selectedTab_ = StudioTab::allCases.at(static_cast<std::size_t>(index));
        Q_EMIT selectedTabChanged();
    }
}

} // namespace tocca::ui
