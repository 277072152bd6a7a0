#pragma once

#include <QWidget>

#include <functional>
#include <optional>

class MessageBoxes;
class QLineEdit;
class QPushButton;
class Report;
struct FormTraits;
struct PrintoutHeading;
struct Session;

/**
 * The printouts of one Statement: its basic information, challans and employee or deductee
 * rows, and for 24Q in the fourth quarter the salary annexure. Each opens in a viewer; a list
 * without rows says so.
 */
class FrmReport : public QWidget
{
    Q_OBJECT

public:
    FrmReport(Session &session, MessageBoxes &boxes, QWidget *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Build = std::function<std::optional<Report>(const PrintoutHeading &)>;

    QLineEdit *textBox(const QString &name);
    /// Builds a printout and shows it under the name; none is shown when it has no rows and
    /// @p saysWhenEmpty is false.
    void print(const QString &name, const Build &build, bool saysWhenEmpty);
    void printBasicInfo();
    void printChallans();
    void printAnnexure();
    void printSalaryAnnexure();
    void showPanel(bool shown);

    Session &m_session;
    MessageBoxes &m_boxes;
    const FormTraits *m_form;
    QLineEdit *m_company;
    QWidget *m_panel;
    QList<QLineEdit *> m_panelBoxes;
};
