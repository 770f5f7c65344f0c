// Activation, and the end of the program at awkward moments.
#include "QtFixture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QWindow>

namespace tessarin {
namespace {

class LifeCycleTest : public QtFixture, public testing::WithParamInterface<const char*> {};

TEST_F(LifeCycleTest, ReturningFromAnotherWindowActivatesButNotFromAnOwnBox) {
    EXPECT_EQ(platform.Activations, 1);
    Script("answer OK & menu mnuAbout & activate");
    EXPECT_EQ(platform.Activations, 1);

    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    Activate();
    EXPECT_EQ(platform.Activations, 2);
    EXPECT_EQ(form->windowHandle()->type(), Qt::Window);
    EXPECT_TRUE(form->isVisible());
}

// A view that sleeps, a question and a file dialog.
INSTANTIATE_TEST_SUITE_P(Commands, LifeCycleTest,
                         testing::Values("mnuViewGroups", "mnuEditClearAll", "mnuFileImportCSV"));

TEST_P(LifeCycleTest, TheProgramEndsSoonWhenClosedInACommand) {
    At(1).SetValue(5);
    platform.ReallySleeps = true;
    Unexpected = [](QDialog&) {};
    bool ended = false;
    QElapsedTimer sinceClose;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [&] {
        const bool isMoment = QApplication::activeModalWidget() != nullptr ||
                              window.lblField(1).BackColor() == 0xFFFF;
        if (isMoment && !sinceClose.isValid() && form->close()) sinceClose.start();
    });
    user.start(1);
    QTimer::singleShot(1, form, [&] {
        Do(std::string("menu ") + GetParam());
        ended = true;
    });
    QApplication::exec();
    EXPECT_TRUE(ended);
    EXPECT_LT(sinceClose.elapsed(), 1000);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(At(1).Value(), 5) << "the question was not answered";
    EXPECT_EQ(window.lblFile.Caption(), "");
}

TEST_F(LifeCycleTest, ThePlatformOutlivesItsForm) {
    {
        qt::QtPlatform machine;
        qt::QtToolkit kit(machine);
        frmTessarin(kit).Show();
        EXPECT_EQ(&Platform::Current(), &machine);
        machine.LockWindowUpdate(1);
        EXPECT_EQ(machine.GetWindowLongA(1, -20), 0);
    }
    EXPECT_EQ(Platform::Current().ProgramFolder(), ".") << "no platform is current";
}

} // namespace
} // namespace tessarin
