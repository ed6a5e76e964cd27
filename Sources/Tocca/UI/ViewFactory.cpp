#include "UI/ViewFactory.h"

#include <utility>

namespace tocca::ui {
namespace {

ViewFactory& stored()
{
    static ViewFactory& factory = *new ViewFactory;
    return factory;
}

} // namespace

void setDefaultViews(ViewFactory views)
{
    stored() = std::move(views);
}

const ViewFactory& defaultViews()
{
    return stored();
}

} // namespace tocca::ui
