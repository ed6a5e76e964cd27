#include "UI/Popover/Packs/CommunityPage.h"

#include <algorithm>

namespace tocca::ui {

std::size_t CommunityPage::totalPages() const noexcept
{
    return std::max<std::size_t>(1, (count + kPageSize - 1) / kPageSize);
}

std::size_t CommunityPage::page() const noexcept
{
    return std::clamp<std::size_t>(stored, 1, totalPages());
}

std::size_t CommunityPage::end() const noexcept
{
    return std::min(count, page() * kPageSize);
}

void CommunityPage::turnBack() noexcept
{
    if (canTurnBack()) {
        --stored;
    }
}

void CommunityPage::turnForward() noexcept
{
    if (canTurnForward()) {
        ++stored;
    }
}

std::string CommunityPage::title() const
{
    return "COMMUNITY LIBRARY (" + std::to_string(count) + " SWITCHES)";
}

std::string CommunityPage::position() const
{
    return std::to_string(page()) + "/" + std::to_string(totalPages());
}

} // namespace tocca::ui
