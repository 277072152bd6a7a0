#pragma once

#include "support/teststore.h"

/// The rows the core tests read: groups (one named with an apostrophe, one stored padded, one
/// Null), companies of two assessment periods, Statements of three forms and 26Q deductee rows.
/// Built once per program; a test that writes works on a copy.
const TestStore &coreStore();
