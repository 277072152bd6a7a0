#pragma once

#include "core/datastore.h"

#include <QTemporaryDir>
#include <memory>

/// A data store of the current layout in a temporary folder, with the reference data of the
/// financial year 2026-27, upgraded as the program's start would leave it.
class TestStore
{
public:
    TestStore();

    DataStore &store() { return *m_store; }
    QString folder() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
    std::unique_ptr<DataStore> m_store;
};
