#pragma once

#include "reports/certificate16a.h"

#include <QWidget>

class MessageBoxes;
class QCheckBox;
class QComboBox;
class QListWidget;
class QPushButton;
struct Session;

/// The older Form 16A of 26Q: a Statement by its company's name, its deductee rows chosen in a
/// list, a certificate for each, one after another or each on a page of its own.
class FrmCertificate16A : public QWidget
{
    Q_OBJECT

public:
    FrmCertificate16A(const Session &session, MessageBoxes &boxes, QWidget *parent = nullptr);

    /// The OK button: the certificates of the chosen rows, shown in a viewer.
    void showCertificates();

private:
    void companyChosen();
    void toggleSelection();
    void fail();

    const Session &m_session;
    Certificate16A m_certificates;
    MessageBoxes &m_boxes;
    QComboBox *m_company;
    QListWidget *m_deductees;
    QCheckBox *m_pageBreak;
    QPushButton *m_selectAll;
};
