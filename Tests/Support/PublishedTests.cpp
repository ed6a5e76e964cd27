#include "Support/Lifetime.h"
#include "Support/Published.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>

namespace tocca {
namespace {

struct ManualQueue : Executor {
    void post(Task task) override { tasks.push_back(std::move(task)); }

    void drain()
    {
        while (!tasks.empty()) {
            Task task = std::move(tasks.front());
            tasks.pop_front();
            task();
        }
    }

    std::deque<Task> tasks;
};

struct PublishedTest : testing::Test {
    ThreadRoleScope role{ThreadRole::Main};
    Published<int> value{1};
    std::string log;
};

TEST_F(PublishedTest, TellsObserversOfEveryAssignmentInSubscriptionOrder)
{
    const auto a = value.onChange([this](int v) { log += "a" + std::to_string(v); });
    auto b = value.onChange([this](int v) { log += "b" + std::to_string(v); });

    value.set(2);
    value.set(2);
    b.reset();
    value.set(3);

    EXPECT_EQ(log, "a2b2a2b2a3");
}

TEST_F(PublishedTest, SurvivesObserversThatComeAndGoDuringANotification)
{
    Subscription late;
    Subscription second;
    const auto first = value.onChange([&](int) {
        log += "1";
        second.reset();
        late = value.onChange([this](int) { log += "L"; });
    });
    second = value.onChange([this](int) { log += "2"; });
    const auto third = value.onChange([this](int) { log += "3"; });

    value.set(2);
    EXPECT_EQ(log, "13") << "the removed one is not called, the added one not yet";

    value.set(3);
    EXPECT_EQ(log, "1313") << "the first replaced the late one while it was told";
}

TEST_F(PublishedTest, DeliversTheCurrentValueAndLaterOnesThroughTheQueue)
{
    ManualQueue queue;
    auto link = value.subscribe(queue, [this](int v) { log += std::to_string(v); });
    value.set(2);
    value.set(3);
    EXPECT_EQ(log, "");
    queue.drain();
    EXPECT_EQ(log, "123");

    value.set(4);
    link.reset();
    queue.drain();
    EXPECT_EQ(log, "123") << "a delivery already queued finds its observer gone";
}

TEST_F(PublishedTest, MayBeDestroyedByItsOwnObserver)
{
    auto owned = std::make_unique<Published<int>>(0);
    const auto link = owned->onChange([&](int v) {
        owned.reset();
        log += std::to_string(v);
    });
    owned->set(7);
    EXPECT_EQ(log, "7");
}

TEST(PublishedDeathTest, RefusesToBeWrittenOffTheMainThread)
{
    const ThreadRoleScope role(ThreadRole::Capture);
    Published<int> value(1);
    EXPECT_DEATH(value.set(2), "Published::set called on a thread with role 'capture'");
}

TEST(Lifetime, MakesLateCallsDoNothing)
{
    int calls = 0;
    auto lifetime = std::make_unique<Lifetime>();
    auto call = lifetime->guard([&calls](int by) { calls += by; });
    call(2);
    lifetime.reset();
    call(2);
    EXPECT_EQ(calls, 2);
}

} // namespace
} // namespace tocca
