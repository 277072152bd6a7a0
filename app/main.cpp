#include "core/datastore.h"
#include "shell/mdimain.h"
#include "core/qtmessageboxes.h"
#include "core/session.h"
#include "core/startup.h"
#include "core/storeerror.h"
#include "shell/screenfactories.h"

#include <QApplication>
#include <memory>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(appTitle);
    const QString programFolder = QApplication::applicationDirPath();
    QtMessageBoxes boxes;

    // Without its data store the program has nothing to show: one box, and no main window.
    std::unique_ptr<DataStore> store;
    try {
        store = startup::openStore(programFolder);
    } catch (const StoreError &error) {
        boxes.show({error.description(), error.code().isEmpty() ? appTitle : error.code(),
                    MessageIcon::Critical, MessageButtons::Ok});
        return 1;
    }

    Session session(*store);
    MdiMain mainWindow(programFolder, session, boxes);
    registerScreens(mainWindow, session, boxes);
    boxes.setParent(&mainWindow);
    mainWindow.showMaximized();
    mainWindow.load();
    try {
        startup::readAssessmentPeriod(session);
    } catch (const StoreError &error) {
        boxes.show({error.description(), appTitle, MessageIcon::Critical, MessageButtons::Ok});
    }
    startup::createReturnsFolder(store->folder());
    return app.exec();
}
