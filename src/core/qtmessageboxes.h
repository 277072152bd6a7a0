#pragma once

#include "core/messageboxes.h"

class QWidget;

/// Shows each message as a modal QMessageBox over the given window.
class QtMessageBoxes : public MessageBoxes
{
public:
    explicit QtMessageBoxes(QWidget *parent = nullptr) : m_parent(parent) {}
    void setParent(QWidget *parent) { m_parent = parent; }
    Answer show(const Message &message) override;

private:
    QWidget *m_parent;
};
