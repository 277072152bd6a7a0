#include "statements/check/statementcheck.h"

#include "core/formtraits.h"
#include "core/screenroutines.h"
#include "core/session.h"
#include "statements/check/findingfields.h"
#include "statements/check/frmfilingcheck.h"
#include "statements/statementsheet.h"

#include <QMdiArea>
#include <QMdiSubWindow>

StatementCheck::StatementCheck(QWidget *screen, const StatementSheet &sheet, MessageBoxes &boxes)
    : QObject(screen), m_screen(screen), m_sheet(sheet), m_boxes(boxes)
{
}

void StatementCheck::show()
{
    if (!m_list) {
        const BasicInfo &info = m_sheet.info();
        const QStringList heading = {info.compName, QStringLiteral("TAN ") + info.tan,
                                     QStringLiteral("Form ") + m_sheet.form().formType,
                                     m_sheet.session().curQuarter};
        m_list = new FrmFilingCheck(
            m_sheet.session().store, m_sheet.form(), m_sheet.basicInfoId(), heading,
            [this](const filingcheck::Finding &finding) { return fieldLabel(finding); },
            m_boxes);
        connect(m_list, &FrmFilingCheck::findingChosen, this, &StatementCheck::findingChosen);
        screenroutines::openBeside(m_screen, m_list);
    } else if (auto *frame = qobject_cast<QMdiSubWindow *>(m_list->parentWidget())) {
        frame->mdiArea()->setActiveSubWindow(frame);
    }
    m_list->run();
}

QString StatementCheck::fieldLabel(const filingcheck::Finding &finding) const
{
    const QString control = findingfields::controlOf(m_sheet.form(), finding);
    const QWidget *field = control.isEmpty() ? nullptr : m_screen->findChild<QWidget *>(control);
    const QString label = field ? screenroutines::labelOf(field) : QString();
    return label.isEmpty() ? finding.column : label;
}
