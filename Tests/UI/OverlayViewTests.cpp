#include "UI/NotchHUD/NotchHUDViewModel.h"
#include "UI/Quick/QmlView.h"
#include "UI/Quick/SpringFollow.h"
#include "UI/Quick/WaveformBars.h"
#include "UI/Underglow/Glow.h"
#include "UI/Underglow/SpatialUnderglowViewModel.h"
#include "UI/ViewTest.h"

#include <QTest>

#include <algorithm>

namespace tocca::ui {
namespace {

struct OverlayView : ViewTest {
    OverlayView()
    {
        machine.host.settle();
        machine.host.advance(1);
    }

    void show(const QSize& size)
    {
        window.setColor(Qt::black);
        window.resize(size);
        window.contentItem()->setSize(size);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    /// Whether the window shows its ground and nothing else.
    bool isEmpty()
    {
        const QImage image = grab();
        QImage ground(image.size(), image.format());
        ground.fill(Qt::black);
        return image == ground;
    }
};

struct NotchHUDView : OverlayView {
    NotchHUDView()
    {
        view = makeOverlayView<NotchHUDViewModel>(engine, machine.notchHUD, *window.contentItem());
        show({320, 46});
        machine.notchHUD.isEnabled.set(true);
    }

    /// A stroke of the least energy.
    void pulse()
    {
        machine.host.random().script({0});
        machine.notchHUD.triggerPulse();
    }

    void open()
    {
        pulse();
        EXPECT_TRUE(eventually([this] { return capsule().scale() == 1; }));
    }

    QQuickItem& capsule() { return *view->findChild<QQuickItem*>("capsule"); }

    QQuickItem* view = nullptr;
};

TEST_F(NotchHUDView, ShowsNothingUntilAPulseOpensItAndAgainOnceItHasClosed)
{
    EXPECT_TRUE(isEmpty());
    EXPECT_DOUBLE_EQ(capsule().scale(), 0.7);

    open();
    EXPECT_EQ(capsule().opacity(), 1);
    EXPECT_FALSE(isEmpty());

    machine.host.advance(1.7);
    EXPECT_TRUE(eventually([this] { return !capsule().isVisible(); }));
    EXPECT_TRUE(eventually([this] { return capsule().scale() == 0.7; }));
    EXPECT_TRUE(isEmpty());
}

TEST_F(NotchHUDView, SpringsDifferentlyOpenAndShut)
{
    const auto& spring = *view->findChild<SpringFollow*>();

    struct Motion {
        double response;
        double dampingFraction;
    };

    std::vector<Motion> motions;
    QObject::connect(&spring, &SpringFollow::toChanged, [&] {
        motions.push_back(
            {spring.property("response").toDouble(), spring.property("dampingFraction").toDouble()});
    });
    open();
    machine.host.advance(1.7);
    ASSERT_EQ(motions.size(), 2U);
    EXPECT_EQ(motions[0].response, 0.28);
    EXPECT_EQ(motions[0].dampingFraction, 0.72);
    EXPECT_EQ(motions[1].response, 0.45);
    EXPECT_EQ(motions[1].dampingFraction, 0.85);
}

TEST_F(NotchHUDView, IsClosedAtOnceWhenSwitchedOffAndWithReducedMotion)
{
    open();
    machine.notchHUD.isEnabled.set(false);
    EXPECT_EQ(capsule().opacity(), 0);

    reduceMotion();
    machine.notchHUD.isEnabled.set(true);
    pulse();
    EXPECT_EQ(capsule().opacity(), 1);
    EXPECT_NEAR(view->findChild<WaveformBars*>()->heights()[5], 16.65, 0.001);
}

TEST_F(NotchHUDView, BarsEaseToTheHeightsOfTheStroke)
{
    const auto& bars = *view->findChild<WaveformBars*>();
    EXPECT_EQ(bars.heights(), (WaveformBars::Heights{2, 2, 2, 2, 2, 2}));
    pulse();
    EXPECT_LT(bars.heights()[5], 16);
    EXPECT_TRUE(eventually([&] { return std::abs(bars.heights()[5] - 16.65) < 0.001; }));
    EXPECT_NEAR(bars.heights()[0], 5.275, 0.001);

    machine.host.advance(1.7);
    EXPECT_TRUE(eventually([&] { return bars.heights()[5] == 2; }));
}

TEST_F(NotchHUDView, CutsALongNameAndKeepsTheSpeedAtTheRightEdge)
{
    open();
    for (const char* name :
         {"NK Cream", "A pack whose name goes on for longer than any capsule <b>could</b> hold"}) {
        SCOPED_TRACE(name);
        machine.notchHUD.switchName.set(name);
        QQuickItem& pill = *item("pill");
        QQuickItem& text = *item("name");
        EXPECT_EQ(pill.x() + pill.width(), 308);
        EXPECT_LE(text.x() + text.width(), pill.x() - 10);
        EXPECT_EQ(text.property("lineCount").toInt(), 1);
        EXPECT_EQ(text.property("text").toString(), name);
        EXPECT_EQ(text.property("truncated").toBool(), std::string(name) != "NK Cream");
    }
}

TEST_F(NotchHUDView, SpeedTurnsOrangeAboveEighty)
{
    const QColor orange("#ea580c");
    open();
    machine.notchHUD.currentWPM.set(80);
    EXPECT_EQ(property("speed", "text").toString(), "80");
    EXPECT_EQ(property("speed", "color").value<QColor>(), QColor(Qt::white));
    EXPECT_EQ(property("speedometer", "color").value<QColor>(), QColor("#999999"));
    machine.notchHUD.currentWPM.set(81);
    EXPECT_EQ(property("speed", "text").toString(), "81");
    EXPECT_EQ(property("speed", "color").value<QColor>(), orange);
    EXPECT_EQ(property("speedometer", "color").value<QColor>(), orange);
}

struct UnderglowView : OverlayView {
    static constexpr int kWidth = 1280;
    static constexpr int kHeight = 20;

    UnderglowView()
    {
        view = makeOverlayView<SpatialUnderglowViewModel>(engine, machine.underglow, *window.contentItem());
        show({kWidth, kHeight});
    }

    QQuickItem& light() { return *view->childItems().at(0); }

    /// What is shown at the height of a pulse.
    QImage peak(float pan)
    {
        machine.underglow.triggerPulse(pan);
        EXPECT_TRUE(eventually([this] { return light().opacity() == kGlowPeak; }));
        return grab().convertToFormat(QImage::Format_RGB32);
    }

    static int brightness(QRgb pixel) { return std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)}); }

    QQuickItem* view = nullptr;
};

TEST_F(UnderglowView, LightsTheEdgeWhereTheKeyLiesAndDiesAwayAround)
{
    struct Row {
        float pan;
        int centre;
        int lineBegin;
        int lineEnd;
    };

    const Row rows[] = {
        {.pan = -0.6F, .centre = 192, .lineBegin = 0, .lineEnd = 512},
        {.pan = 0, .centre = 640, .lineBegin = 320, .lineEnd = 960},
        {.pan = 0.6F, .centre = 1088, .lineBegin = 768, .lineEnd = 1280},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.pan);
        const QImage image = peak(row.pan);
        const auto at = [&](int x, int y) {
            return brightness(image.pixel(std::clamp(x, 0, kWidth - 1), y));
        };
        const int bottom = kHeight - 1;

        // The line over the glow, each at its strength, of the amber's 245 over black.
        EXPECT_NEAR(at(row.centre, bottom), 245 * (1 - (1 - 0.85) * (1 - 0.85 * 0.9)), 4);
        EXPECT_GT(at(row.centre, kHeight / 2), at(row.centre, 3));
        for (int x = 0; x < kWidth; ++x) {
            ASSERT_LE(at(x, 0), 3) << "the strip must not end in an edge, at " << x;
            if (x < row.lineBegin - 2 || x > row.lineEnd + 2) {
                ASSERT_EQ(at(x, bottom), 0) << x;
            }
        }
        EXPECT_GT(at(row.lineBegin + 12, bottom) + at(row.lineEnd - 12, bottom), 0);
        EXPECT_NEAR(at(row.centre - 150, 10), at(row.centre + 150, 10), 2);
    }
}

TEST_F(UnderglowView, PaintsAndMovesNothingWhileIdle)
{
    EXPECT_TRUE(isEmpty());
    EXPECT_FALSE(light().isVisible());
    peak(0);
    EXPECT_FALSE(isEmpty());
    machine.host.advance(0.1);
    EXPECT_TRUE(eventually([this] { return !light().isVisible(); }));
    EXPECT_TRUE(isEmpty());
}

TEST_F(UnderglowView, RecoloursAGlowInProgress)
{
    peak(0);
    machine.underglow.currentTheme.set(UnderglowTheme::cyberpunk);
    const QColor shown = grab().pixelColor(kWidth / 2, kHeight - 1);
    const double strength = 1 - (1 - 0.85) * (1 - 0.85 * 0.9);
    EXPECT_NEAR(shown.red(), 6 * strength, 4);
    EXPECT_NEAR(shown.green(), 182 * strength, 4);
    EXPECT_NEAR(shown.blue(), 212 * strength, 4);
}

TEST_F(UnderglowView, IsLitAndDarkAtOnceWithReducedMotion)
{
    reduceMotion();
    machine.underglow.triggerPulse(0);
    EXPECT_EQ(light().opacity(), kGlowPeak);
    machine.host.advance(0.1);
    EXPECT_FALSE(light().isVisible());
}

} // namespace
} // namespace tocca::ui
