#pragma once

#include "filingcheck/filingcheck.h"

#include <QWidget>

#include <functional>

class DataStore;
class DateBox;
class DueListModel;
class FindingListModel;
class MessageBoxes;
class QLabel;
class QPlainTextEdit;
class RowListView;
struct FormTraits;

/**
 * frmFilingCheck: the check before filing of one saved Statement, beside its statement screen:
 * what the authority's validation would reject (errors) or question (warnings), the interest
 * under section 201(1A) that each challan owes and the late fee under section 234E as of a
 * filing date. Double-clicking a finding, or Enter on it, asks the statement screen to show
 * that field; the list prints and exports through the report layer.
 */
class FrmFilingCheck : public QWidget
{
    Q_OBJECT

public:
    using FieldLabel = std::function<QString(const filingcheck::Finding &)>;

    /// heading: the company, its TAN, the form and the quarter, a line each. fieldLabel: the
    /// label of the statement screen's box that shows a finding's column.
    FrmFilingCheck(const DataStore &store, const FormTraits &form, int basicInfoId,
                   const QStringList &heading, FieldLabel fieldLabel, MessageBoxes &boxes,
                   QWidget *parent = nullptr);

    /// Checks the Statement as the store now holds it, as of the filing date. A store failure is
    /// shown and leaves the lists as they were; the result is then false.
    bool run();
    const filingcheck::CheckResult &result() const { return m_result; }

signals:
    void findingChosen(const filingcheck::Finding &finding);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void layOut();
    void chooseFinding(int row);
    void showWorking(int row);
    void print();
    void exportList();

    const DataStore &m_store;
    const FormTraits &m_form;
    int m_basicInfoId;
    QStringList m_heading;
    FieldLabel m_fieldLabel;
    MessageBoxes &m_boxes;
    filingcheck::CheckResult m_result;
    FindingListModel *m_findings;
    DueListModel *m_dues;
    DateBox *m_filedOn;
    QLabel *m_summary;
    RowListView *m_findingList;
    RowListView *m_dueList;
    QPlainTextEdit *m_working;
};
