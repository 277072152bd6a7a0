#include "shell/screenfactories.h"

#include "core/datastore.h"
#include "core/session.h"
#include "core/startup.h"
#include "masters/frmcompanymaster.h"
#include "masters/frmdeducteemaster.h"
#include "masters/frmemployeemaster.h"
#include "masters/frmgroupmaster.h"
#include "masters/referencemaster.h"
#include "returnfile/frmshowforms.h"
#include "shell/mdimain.h"

void registerScreens(MdiMain &window, Session &session, MessageBoxes &boxes)
{
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
    window.setScreenFactory(QStringLiteral("frmShowForms"), [&] {
        return new FrmShowForms(startup::returnsFolder(session.store.folder()), boxes);
    });
}
