#include "Showroom.h"

#include "Instruments/ControllersOnMemory.h"
#include "UI/Quick/QmlView.h"
#include "UI/Studio/MainWindowViewModel.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/QQmlExtensionPlugin>

#include <benchmark/benchmark.h>

Q_IMPORT_QML_PLUGIN(Tocca_UIPlugin)

// What a key typed into the showroom's search costs until the window is painted again.
namespace tocca::ui {
namespace {

void searchAndPaintAmong10000Packs(benchmark::State& state)
{
    ControllersOnMemory machine;
    machine.host.settle();
    machine.loader.availableCustomPacks.set(benchmarks::packs(benchmarks::kPacks));
    MainWindowViewModel model(machine.all);
    QQmlEngine engine;
    QQuickWindow window;
    window.resize(960, 650);
    window.contentItem()->setSize(window.size());
    const std::unique_ptr<QQuickItem> view(
        makeQmlView(engine, QStringLiteral("Studio/MainWindowView.qml"), model, *window.contentItem()));
    window.show();
    QCoreApplication::processEvents();
    std::size_t typed = 0;
    for (auto _ : state) {
        model.showroom()->search(QString::fromStdString(benchmarks::searchAfter(++typed)));
        QCoreApplication::processEvents();
        benchmark::DoNotOptimize(window.grabWindow().constBits());
    }
}

BENCHMARK(searchAndPaintAmong10000Packs)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace tocca::ui

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
