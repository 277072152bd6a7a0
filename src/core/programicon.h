#pragma once

#include <QIcon>

/// The program's own icon in every size it comes in, for the application's windows. A program
/// carries the pictures through kelvora_program_icon() in its CMakeLists.
QIcon programIcon();
