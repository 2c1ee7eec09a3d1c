// While a file is read the window takes nothing but the key that stops the reading.

#include "platform/testing/Input.h"
#include "viewer/app/MainWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>

namespace
{

/// A key may come as both; stopping twice is as good as once.
bool stops(QEvent::Type type, int key)
{
    orvplatform::testing::ensureApplication();
    orvviewer::MainWindow window;
    bool stopped = false;
    window.block([&stopped] { stopped = true; });
    QKeyEvent event(type, key, Qt::NoModifier);
    QApplication::sendEvent(&window, &event);
    window.unblock();
    return stopped;
}

// A command on the same key claims it by the override, before the key itself comes.
TEST(Blocking, EscapeStopsTheWorkAsAKeyAndAsAnOverride)
{
    EXPECT_TRUE(stops(QEvent::KeyPress, Qt::Key_Escape));
    EXPECT_TRUE(stops(QEvent::ShortcutOverride, Qt::Key_Escape));
}

TEST(Blocking, OtherKeysDoNothing)
{
    EXPECT_FALSE(stops(QEvent::KeyPress, Qt::Key_A));
    EXPECT_FALSE(stops(QEvent::KeyRelease, Qt::Key_Escape));
}

} // namespace
