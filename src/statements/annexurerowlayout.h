#pragma once

#include <functional>

class DateBox;
class QComboBox;
class QGridLayout;
class QLineEdit;
class QWidget;
struct FormTraits;

/// The boxes of an annexure row that the panel lays out.
struct AnnexureRowBoxes
{
    std::function<QLineEdit *(const char *control)> box; ///< a text box by its objectName
    QComboBox *party;
    QComboBox *state;
    QComboBox *grossingUp;
    DateBox *date;
    DateBox *fromDate;
    DateBox *toDate;
};

/**
 * The row's boxes under their labels, with the form's item numbers, in three columns: who the
 * party is, where (or, on Form 24Q, the employee's period), and what was paid and deducted. The
 * boxes that the form's rows lack are hidden.
 */
QGridLayout *layOutAnnexureRow(QWidget *panel, const FormTraits &form,
                               const AnnexureRowBoxes &row);
