#pragma once

#include "reports/form16adocument.h"
#include "reports/form16aworktables.h"

#include <QWidget>

class MessageBoxes;
class QCheckBox;
class QLineEdit;
class QTreeWidget;
struct FormTraits;
struct Session;

/**
 * Form 16A of a company's quarter: the deductees with ticks, the six texts that every
 * certificate carries, the certificates of the ticked deductees in one document, or each
 * deductee's in a PDF of its own. The work tables are filled once as the screen opens.
 */
class FrmForm16Report : public QWidget
{
    Q_OBJECT

public:
    static inline const QString noTickText = QStringLiteral("Please select the Deductee !!");
    /// Said before the print when the ticked deductees' names join more than one master each.
    static inline const QString sharedNamesText = QStringLiteral(
        "More than one deductee master of this group bears each of these names:\n\n%1\n\n"
        "The certificates join the masters by name, so each of their rows is printed once for "
        "every master of the name. \"Save as PDFs...\" writes each master's own certificates.");

    /// @p quarterText: the quarter as the selection screen named it ("First Quarter").
    FrmForm16Report(Session &session, MessageBoxes &boxes, const QString &quarterText,
                    QWidget *parent = nullptr);

    /// Form No. 16A: the certificates of the ticked deductees, shown in a viewer.
    void printCertificates();
    /// The certificates of the ticked deductees into the folder, a PDF each, with a progress
    /// bar that can stop them. Returns the number of files written.
    int savePdfs(const QString &folder);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void fillList();
    void setAllTicks(bool ticked);
    void choosePdfFolder();
    /// The master ids of the ticked deductees; none ticked says so and gives none.
    QList<int> tickedIds();
    Form16AHeading heading() const;
    void showStoreError(const QString &description);

    Session &m_session;
    MessageBoxes &m_boxes;
    const FormTraits *m_form;
    Form16AWorkTables m_tables;
    QTreeWidget *m_list;
    QCheckBox *m_selectAll;
    QList<QLineEdit *> m_inputs; ///< acknowledgement, place, date, name, designation, remarks
};
