#pragma once

#include "core/formtraits.h"
#include "core/session.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

/// A store with group 1 and its company 1 (Karnataka, deductor status "O"), and a session that
/// has chosen the company, a form and a quarter of 2026-27, as the selection screen leaves it.
struct StatementFixture
{
    explicit StatementFixture(FormKind kind, const QString &quarter = QStringLiteral("Q1"));

    /// A section (or collection code) of the form's master; empty on 24Q.
    QString section() const;
    /// An annexure row under a challan, as the annexure panel would save it.
    void insertAnnexureRow(int basicInfoId, int challanId, int rowId) const;

    const FormTraits &form;
    TestStore data;
    Session session;
    ScriptedMessageBoxes boxes;
};
