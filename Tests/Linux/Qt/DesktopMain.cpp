#include "Platform/Linux/Qt/RendererChoice.h"

#include <gtest/gtest.h>

#include <QGuiApplication>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    tocca::platform::linux::chooseRenderer();
    return RUN_ALL_TESTS();
}
