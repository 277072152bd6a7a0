#pragma once

#include <QDialog>

/// "About Kelvora": the program's name, purpose and version; the one modal screen.
class FrmAbout : public QDialog
{
    Q_OBJECT

public:
    explicit FrmAbout(QWidget *parent = nullptr);
};
