// Runs the tests of the windows, without a screen unless QT_QPA_PLATFORM is set.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "TestSupport.h"
#include "ui/widgets/Appearance.h"

int main(int argc, char** argv) {
    if (!tarvelin::kWindows && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM",
                "offscreen:configfile=" TARVELIN_SOURCE_DIR "/tests/data/bildschirm.json");
    }
    // Otherwise the toolkit would leave a folder behind.
    const QTemporaryDir runtimeFolder;
    qputenv("XDG_RUNTIME_DIR", runtimeFolder.path().toUtf8());
    // The tests fetch from this machine only.
    qputenv("no_proxy", "*");
    testing::InitGoogleTest(&argc, argv);
    // Tests can control the toolkit's own dialogs only.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication program(argc, argv);
    tarvelin::ApplyAppearance(program);
    return RUN_ALL_TESTS();
}
