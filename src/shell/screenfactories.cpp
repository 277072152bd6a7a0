#include "shell/screenfactories.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/session.h"
#include "core/startup.h"
#include "exchange/frmimport.h"
#include "masters/frmcompanymaster.h"
#include "masters/frmdeducteemaster.h"
#include "masters/frmemployeemaster.h"
#include "masters/frmgroupmaster.h"
#include "masters/partymasterform.h"
#include "masters/referencemaster.h"
#include "reports/frmcertificate16a.h"
#include "reports/frmform16report.h"
#include "reports/frmgroupwisecompanydetails.h"
#include "reports/frmreport.h"
#include "reports/listreportscreens.h"
#include "returnfile/frmshowforms.h"
#include "shell/mdimain.h"
#include "statements/frmstatement.h"

#include <QMdiSubWindow>

namespace {

// The statement screens' third command button: the party master, ready for a new party.
void openPartyMasterForAdding(MdiMain &window, const QString &master)
{
    if (QMdiSubWindow *frame = window.openScreen(master)) {
        if (auto *party = qobject_cast<PartyMasterForm *>(frame->widget()))
            party->startInAddMode();
    }
}

} // namespace

void registerScreens(MdiMain &window, Session &session, MessageBoxes &boxes)
{
    for (const FormTraits &form : allForms()) {
        window.setScreenFactory(form.screenName, [&window, &session, &boxes, &form] {
            auto *screen = new FrmStatement(form, session, boxes);
            QObject::connect(screen, &FrmStatement::partyMasterAsked, &window,
                             [&window](const QString &master) {
                                 openPartyMasterForAdding(window, master);
                             });
            return screen;
        });
    }
    window.setScreenFactory(QStringLiteral("frmGroupMaster"),
                            [&] { return new FrmGroupMaster(session, boxes); });
    window.setScreenFactory(QStringLiteral("frmCompanyMaster"),
                            [&] { return new FrmCompanyMaster(session, boxes); });
    window.setScreenFactory(QStringLiteral("frmEmployeeMaster"),
                            [&] { return new FrmEmployeeMaster(session, boxes); });
    window.setScreenFactory(QStringLiteral("frmDeducteeMaster"),
                            [&] { return new FrmDeducteeMaster(session, boxes); });
    for (const auto kind : {ReferenceMaster::Kind::State, ReferenceMaster::Kind::Category,
                            ReferenceMaster::Kind::Ministry}) {
        window.setScreenFactory(ReferenceMaster::screenName(kind), [&session, &boxes, kind] {
            return new ReferenceMaster(kind, session.store, boxes);
        });
    }
    window.setScreenFactory(QStringLiteral("frmImport"),
                            [&] { return new FrmImport(session, boxes); });
    window.setScreenFactory(QStringLiteral("frmShowForms"), [&] {
        return new FrmShowForms(startup::returnsFolder(session.store.folder()), boxes);
    });
    for (const QString &report : listreportscreens::names()) {
        window.setScreenFactory(report, [&session, &boxes, report] {
            return listreportscreens::open(report, session.store, boxes);
        });
    }
    window.setScreenFactory(QStringLiteral("frmGroupWiseCompanyDetails"), [&] {
        return new FrmGroupWiseCompanyDetails(session.store, boxes);
    });
    window.setScreenFactory(QStringLiteral("FrmReport"),
                            [&] { return new FrmReport(session, boxes); });
    window.setScreenFactory(QStringLiteral("frmForm16Report"), [&] {
        return new FrmForm16Report(session, boxes, window.selectedQuarterText());
    });
    window.setScreenFactory(QStringLiteral("frmCertificate16A"),
                            [&] { return new FrmCertificate16A(session, boxes); });
}
