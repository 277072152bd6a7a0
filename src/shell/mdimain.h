#pragma once

#include "core/companyselection.h"

#include <QHash>
#include <QMainWindow>
#include <functional>

class MessageBoxes;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
struct Session;

/// The one main window: the menu, and the frame in which every screen opens.
class MdiMain : public QMainWindow
{
    Q_OBJECT

public:
    using ScreenFactory = std::function<QWidget *()>;

    static inline const QString title =
        QStringLiteral("Kelvora :--  [Electronic Tax Deduction at Source]");
    static inline const QString exitQuestion = QStringLiteral("Want to exit from Kelvora?");

    /// programFolder: the executable's folder, where the backup program and the manual are.
    MdiMain(const QString &programFolder, Session &session, MessageBoxes &boxes,
            QWidget *parent = nullptr);

    /// The second half of start-up: seed, upgrade and financial year of the data store. A store
    /// failure is shown with its description and stops the load; the window stays up.
    bool load();

    /// Makes a screen available to the menu and the selection under its objectName.
    void setScreenFactory(const QString &screen, ScreenFactory factory);

    /// Opens a screen afresh, discarding an open one of the same name first. A screen that this
    /// version does not have yet gives an information box; the result is then null, as it is
    /// when the factory makes no screen (a report with nothing to show).
    QMdiSubWindow *openScreen(const QString &screen);

    /// The open screen of that name, or null.
    QMdiSubWindow *findScreen(const QString &screen) const;

    /// The quarter's text of the last selection, for the Form 16A report screen.
    QString selectedQuarterText() const { return m_selectedQuarterText; }

    /// What ends the program once the user has said so; by default the event loop ends.
    void setProgramEnd(std::function<void()> end) { m_endProgram = std::move(end); }

    QMdiArea *mdiArea() const { return m_area; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildMenus();
    void selectStatement(const QString &formType);
    void selectPrint(const QString &reportForm, const QString &formType);
    void openSelected(const CompanySelection::Outcome &outcome);
    void showGenerationLog(const QString &report);
    void showNotAvailable(const QString &screen);
    void exitProgram();
    bool confirmExit();
    void launchBackup();
    void openManual();
    void showAbout();

    QString m_folder;
    Session &m_session;
    MessageBoxes &m_boxes;
    QMdiArea *m_area;
    QHash<QString, ScreenFactory> m_factories;
    QString m_selectedQuarterText;
    std::function<void()> m_endProgram;
    bool m_ending = false;
};
