#include "UI/Popover/MenuBarViewModel.h"

#include "Audio/Packs/SoundPackLoader.h"
#include "UI/Quick/FileUrl.h"
#include "UI/SwitchSelection.h"

#include <algorithm>
#include <span>
#include <utility>

namespace tocca::ui {
namespace {

std::vector<RowsModel<SoundPackRow>::Role> roles()
{
    using Rows = RowsModel<SoundPackRow>;
    return {Rows::role<&SoundPackRow::icon>("icon"), Rows::role<&SoundPackRow::title>("title"),
            Rows::role<&SoundPackRow::line>("line"), Rows::role<&SoundPackRow::isSelected>("isSelected"),
            Rows::role<&SoundPackRow::isTabStop>("isTabStop")};
}

/// The chosen row, or the first.
void markTabStop(std::vector<SoundPackRow>& rows)
{
    const auto selected =
        std::find_if(rows.begin(), rows.end(), [](const auto& row) { return row.isSelected; });
    if (!rows.empty()) {
        (selected == rows.end() ? rows.front() : *selected).isTabStop = true;
    }
}

} // namespace

MenuBarViewModel::MenuBarViewModel(const Controllers& controllers, Action showMainWindow, Action terminate)
    : controllers_(controllers)
    , showMainWindow_(std::move(showMainWindow))
    , terminate_(std::move(terminate))
    , import_(controllers_.host, controllers_.soundPackLoader)
    , builtInPacks_(roles())
    , communityPacks_(roles())
{
    links_.push_back(
        controllers_.audioEngine.currentSwitchType.onChange([this](const auto&) { refreshRows(); }));
    links_.push_back(
        controllers_.audioEngine.selectedCustomPack.onChange([this](const auto&) { refreshRows(); }));
    links_.push_back(controllers_.soundPackLoader.availableCustomPacks.onChange(
        [this](const auto&) { refreshCommunity(); }));
    refreshCommunity();
}

void MenuBarViewModel::refreshRows()
{
    const auto& engine = controllers_.audioEngine;
    std::vector<SoundPackRow> builtIn;
    builtIn.reserve(audio::SwitchType::allCases.size());
    for (const audio::SwitchType type : audio::SwitchType::allCases) {
        builtIn.push_back({.icon = toQString(type.iconName()),
                           .title = toQString(type.rawValue()),
                           .line = toQString(type.description()),
                           .isSelected = switchSelection::isSelected(engine, type)});
    }
    markTabStop(builtIn);
    builtInPacks_.show(std::move(builtIn));

    std::vector<SoundPackRow> community;
    const std::span packs = controllers_.soundPackLoader.availableCustomPacks.get();
    for (const auto& pack : packs.subspan(community_.first(), community_.end() - community_.first())) {
        community.push_back({.icon = QStringLiteral("waveform.circle.fill"),
                             .title = toQString(pack.name),
                             .line = toQString(pack.description),
                             .isSelected = switchSelection::isSelected(engine, pack)});
    }
    markTabStop(community);
    communityPacks_.show(std::move(community));
}

void MenuBarViewModel::refreshCommunity()
{
    community_.count = controllers_.soundPackLoader.availableCustomPacks.get().size();
    refreshRows();
    Q_EMIT communityChanged();
}

QString MenuBarViewModel::communityTitle() const
{
    return QStringLiteral("COMMUNITY LIBRARY (%1 SWITCHES)").arg(community_.count);
}

QString MenuBarViewModel::communityPosition() const
{
    return QStringLiteral("%1/%2").arg(community_.shown()).arg(community_.total());
}

void MenuBarViewModel::aboutToShow()
{
    checkPermission();
    controllers_.launchAtLogin.checkStatus();
    controllers_.soundPackLoader.refreshCustomPacks();
}

void MenuBarViewModel::playKey(int key)
{
    controllers_.audioEngine.playKey(static_cast<std::uint16_t>(key), audio::KeyStrokeAction::down);
}

void MenuBarViewModel::openAccessibilitySettings()
{
    controllers_.keyboardMonitor.openAccessibilitySettings();
}

void MenuBarViewModel::checkPermission()
{
    if (controllers_.keyboardMonitor.checkPermission()) {
        controllers_.keyboardMonitor.start();
    }
}

bool MenuBarViewModel::handleDrop(const QList<QUrl>& urls)
{
    std::vector<std::filesystem::path> folders;
    for (const QUrl& url : urls) {
        if (auto folder = fileUrl::pathOf(url)) {
            folders.push_back(std::move(*folder));
        }
    }
    return import_.handleDrop(folders);
}

void MenuBarViewModel::chooseBuiltInPack(int row)
{
    if (builtInPacks_.at(row) != nullptr) {
        switchSelection::select(controllers_.audioEngine,
                                audio::SwitchType::allCases.at(static_cast<std::size_t>(row)));
    }
}

void MenuBarViewModel::chooseCommunityPack(int row)
{
    if (communityPacks_.at(row) != nullptr) {
        switchSelection::select(controllers_.audioEngine,
                                controllers_.soundPackLoader.availableCustomPacks.get().at(
                                    community_.first() + static_cast<std::size_t>(row)));
    }
}

void MenuBarViewModel::turnBack()
{
    community_.turnBack();
    refreshCommunity();
}

void MenuBarViewModel::turnForward()
{
    community_.turnForward();
    refreshCommunity();
}

} // namespace tocca::ui
