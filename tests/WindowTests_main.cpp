// Starts the tests of the window, without a screen unless a platform is named or is the only one.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "TestSupport.h"
#include "ui/widgets/Appearance.h"

int main(int argc, char** argv) {
    if (!tarvelin::kWindows && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM",
                "offscreen:configfile=" TARVELIN_SOURCE_DIR "/tests/data/bildschirm.json");
    }
    // The toolkit would make a folder that stays.
    const QTemporaryDir runtimeFolder;
    qputenv("XDG_RUNTIME_DIR", runtimeFolder.path().toUtf8());
    // What is fetched lies on this machine.
    qputenv("no_proxy", "*");
    testing::InitGoogleTest(&argc, argv);
    // A test can press the toolkit's own dialogs only.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication program(argc, argv);
    tarvelin::ApplyAppearance(program);
    return RUN_ALL_TESTS();
}
