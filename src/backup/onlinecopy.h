#pragma once

#include <QString>
#include <functional>

class DataStore;

/// Copies of a data store taken through SQLite's own online backup, and their check.
namespace onlinecopy {

/// Told after each step of a copy: pages copied so far, and of how many.
using Progress = std::function<void(int copied, int total)>;

/**
 * Copies the open store @p source into a new file at @p target through SQLite's online backup:
 * the copy holds one committed state of the store, never a write of another connection that was
 * under way or a mix of two states. @p target must not exist. Throws BackupError: Refused when
 * the source cannot be read (damaged, or kept busy too long), FileSystem when the target
 * cannot be written.
 */
void copy(const DataStore &source, const QString &target, const Progress &progress = {});

/// What SQLite's integrity check finds wrong in the file at @p path, one finding a line; empty
/// when it is sound. A file that SQLite cannot open as a store is a finding too. The file is
/// only read.
QString integrityProblems(const QString &path);

} // namespace onlinecopy
