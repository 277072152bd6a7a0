#include "core/datastore.h"
#include "shell/mdimain.h"
#include "core/qtmessageboxes.h"
#include "core/session.h"
#include "core/startup.h"
#include "core/storeerror.h"
#include "shell/screenfactories.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(appTitle);
    const QString programFolder = QApplication::applicationDirPath();
    QtMessageBoxes boxes;

    // Without its data store the program has nothing to show: one box, and no main window.
    std::optional<OpenedStore> opened;
    try {
        opened = startup::openStore(programFolder, boxes);
    } catch (const StoreError &error) {
        boxes.show({error.description(), error.code().isEmpty() ? appTitle : error.code(),
                    MessageIcon::Critical, MessageButtons::Ok});
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
