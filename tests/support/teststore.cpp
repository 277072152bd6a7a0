#include "teststore.h"

#include "core/freshstore.h"
#include "core/storeupgrade.h"

TestStore::TestStore()
{
    const QString path = m_dir.filePath(DataStore::fileName);
    freshstore::create(path, 2026);
    m_store = std::make_unique<DataStore>(path);
    storeupgrade::run(*m_store);
}
