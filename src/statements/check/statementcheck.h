#pragma once

#include "filingcheck/filingcheck.h"

#include <QObject>
#include <QPointer>

class FrmFilingCheck;
class MessageBoxes;
class QWidget;
class StatementSheet;

/**
 * The check before filing of a statement screen's Statement: its findings listed beside the
 * screen, each under the label of the screen's field that shows it; asked again, the list comes
 * to the front and checks the Statement afresh.
 */
class StatementCheck : public QObject
{
    Q_OBJECT

public:
    StatementCheck(QWidget *screen, const StatementSheet &sheet, MessageBoxes &boxes);

    /// Checks the saved Statement and shows the list.
    void show();

signals:
    void findingChosen(const filingcheck::Finding &finding);

private:
    QString fieldLabel(const filingcheck::Finding &finding) const;

    QWidget *m_screen;
    const StatementSheet &m_sheet;
    MessageBoxes &m_boxes;
    QPointer<FrmFilingCheck> m_list;
};
