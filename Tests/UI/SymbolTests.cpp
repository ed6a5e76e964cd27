#include "Audio/SoundProfile.h"
#include "UI/Quick/UiProperty.h"
#include "UI/Studio/Sidebar/StudioTab.h"
#include "UI/Symbols/SymbolDrawings.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tocca::ui {
namespace {

/// Every word in quotes in the lines of the views that name a symbol.
QSet<QString> namesInViews()
{
    static const QRegularExpression line(
        QStringLiteral(R"(\b(icon|name|symbol|trailingSymbol)(Name)?:\s(.*"[a-z0-9.]+".*))"));
    static const QRegularExpression word(QStringLiteral(R"lit("([a-z0-9.]+)")lit"));
    QSet<QString> names;
    QDirIterator files(QStringLiteral(":/qt/qml/Tocca/UI"), {QStringLiteral("*.qml")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        for (auto lines = line.globalMatch(text); lines.hasNext();) {
            for (auto words = word.globalMatch(lines.next().captured(3)); words.hasNext();) {
                names.insert(words.next().captured(1));
            }
        }
    }
    return names;
}

/// The share of the square that has ink.
double inked(const QImage& image)
{
    int opaque = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            opaque += image.pixelColor(x, y).alpha() > 128 ? 1 : 0;
        }
    }
    return double(opaque) / (image.width() * image.height());
}

TEST(Symbols, AreDrawnForEveryNameThatIsShown)
{
    QSet<QString> names = namesInViews();
    EXPECT_GT(names.size(), 10);
    for (const audio::SwitchType type : audio::SwitchType::allCases) {
        names.insert(toQString(type.iconName()));
    }
    for (const StudioTab tab : StudioTab::allCases) {
        names.insert(toQString(tab.icon()));
    }
    for (const QString& name : names) {
        SCOPED_TRACE(qPrintable(name));
        EXPECT_TRUE(hasSymbol(name));
        const double share = inked(drawSymbol(name, 48, Qt::black));
        EXPECT_GT(share, 0.03);
        EXPECT_LT(share, 0.8);
    }
}

TEST(Symbols, CutWhiteStrokesOutOfTheirInk)
{
    const QImage disc = drawSymbol(QStringLiteral("arrow.up.circle.fill"), 48, QColor(217, 119, 6));
    EXPECT_EQ(disc.pixelColor(24, 24).alpha(), 0) << "the arrow's shaft";
    EXPECT_EQ(disc.pixelColor(12, 32), QColor(217, 119, 6));
    EXPECT_TRUE(drawSymbol(QStringLiteral("no.such.symbol"), 48, Qt::black).isNull());
}

} // namespace
} // namespace tocca::ui
