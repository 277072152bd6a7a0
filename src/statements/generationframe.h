#pragma once

#include "returnfile/generationflow.h"

#include <QFrame>
#include <QHash>

#include <optional>

class MessageBoxes;
class QLabel;
class QLineEdit;
class QPushButton;
class StatementSheet;

/**
 * FrameGen: what the return file will hold, shown between the checks of "Generate File" and the
 * generation itself: the company, the period, the file's name and the totals. Its OK writes the
 * log row and the file through the same flow as the batch front end, so the two give the same
 * bytes for the same Statement.
 */
class GenerationFrame : public QFrame
{
    Q_OBJECT

public:
    static inline const QString checkSummaryText =
        QStringLiteral("Errors found by the check before filing: %1");
    static inline const QString anywayQuestion = QStringLiteral(
        "The check before filing found %1 error(s) for which the authority's validation "
        "rejects a return. Generate the file anyway?");

    GenerationFrame(StatementSheet &statement, MessageBoxes &boxes, QWidget *parent = nullptr);

    /// Fills the fields from a prepared panel and counts the errors of the check before filing;
    /// the file name can then be changed.
    void showPanel(const GenerationPanel &panel, const QDateTime &now, bool hasChallans);
    /// A field's text as the user leaves it, for the cover form.
    QString text(const QString &name) const;
    const std::optional<GenerationPanel> &panel() const { return m_panel; }

    /// How many rows the annexure list shows, as the log records them.
    void setListedRows(std::function<int()> rows) { m_listedRows = std::move(rows); }

signals:
    void hideAsked();
    void coverFormAsked(bool exportIt);

private:
    void checkStatement(int basicInfoId, QDate today);
    void generate();
    void chooseFile();
    QLineEdit *field(const QString &name) const { return m_fields.value(name); }

    StatementSheet &m_statement;
    MessageBoxes &m_boxes;
    QHash<QString, QLineEdit *> m_fields;
    QPushButton *m_ok;
    QPushButton *m_print;
    QPushButton *m_export;
    QLabel *m_checkSummary = nullptr;
    int m_checkErrors = 0;
    std::optional<GenerationPanel> m_panel;
    std::function<int()> m_listedRows;
};
