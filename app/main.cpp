#include "core/datastore.h"
#include "core/programicon.h"
#include "core/programlayout.h"
#include "core/qtmessageboxes.h"
#include "core/session.h"
#include "core/startup.h"
#include "core/storeerror.h"
#include "shell/mdimain.h"
#include "shell/screenfactories.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(appTitle);
    QApplication::setWindowIcon(programIcon());
    const QString programFolder = QApplication::applicationDirPath();
    QtMessageBoxes boxes;

    // Installed, the store lives in the user's data folder and is made there on first start.
    const QString storeFolder = programlayout::storeFolder(programFolder);
    if (programlayout::isInstalled(programFolder)
        && !QFileInfo::exists(QDir(storeFolder).filePath(DataStore::fileName))) {
        const QString failure = programlayout::makeStoreIfMissing(programFolder, storeFolder);
        if (!failure.isEmpty()) {
            boxes.show({failure, appTitle, MessageIcon::Critical, MessageButtons::Ok});
            return 1;
        }
        boxes.show({QStringLiteral("A new data store was made for you in\n%1")
                        .arg(QDir::toNativeSeparators(storeFolder)),
                    appTitle, MessageIcon::Information, MessageButtons::Ok});
    }

    // Without its data store the program has nothing to show: one box, and no main window.
    std::optional<OpenedStore> opened;
    try {
        opened = startup::openStore(storeFolder, boxes);
    } catch (const StoreError &error) {
        boxes.show({error.description(), appTitle, MessageIcon::Critical, MessageButtons::Ok});
        return 1;
    }
    if (!opened)
        return 0; // the user chose not to view a store that cannot be written
    DataStore &store = *opened->store;

    Session session(store);
    MdiMain mainWindow(programFolder, session, boxes);
    registerScreens(mainWindow, session, boxes);
    boxes.setParent(&mainWindow);
    if (store.isViewOnly())
        mainWindow.setWindowTitle(mainWindow.windowTitle() + QStringLiteral(" (viewing only)"));
    mainWindow.showMaximized();
    mainWindow.load();
    try {
        startup::readAssessmentPeriod(session);
    } catch (const StoreError &error) {
        boxes.show({error.description(), appTitle, MessageIcon::Critical, MessageButtons::Ok});
    }
    if (!store.isViewOnly())
        startup::createReturnsFolder(store.folder());
    return app.exec();
}
