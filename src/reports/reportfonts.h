#pragma once

#include "reports/reportband.h"

#include <QFont>

/// The font of a face, sized in points. Reports are laid out in points and drawn scaled to the
/// device, so the sizes are pixel sizes at one pixel a point, without hinting, which keeps text
/// the same width on the screen, the printer and a PDF.
QFont reportFont(ReportFont face);
