#pragma once

#include "reports/reportfile.h"
#include "returnfile/form27avalues.h"

class DataStore;
class MessageBoxes;
class QWidget;

/**
 * The buttons of Form 27A on the generation panel. Each first looks for a generation of the
 * company, form and assessment year; without one it says "You need to first generate the
 * Kelvora file" and does nothing else.
 */
namespace form27aactions {

/// Print: the sheet in the viewer, captioned "Form 27A", beside the screen.
void printForm27A(QWidget *parent, const DataStore &store, MessageBoxes &boxes,
                  const Form27AValues &values);

/// Export: asks for a file (Excel, Document, Text or PDF) and writes the sheet in the format
/// that the ending of its name asks for, else in that of the chosen filter, under the name
/// that says what it holds (reportfile::nameForFormat).
void exportForm27A(QWidget *parent, const DataStore &store, MessageBoxes &boxes,
                   const Form27AValues &values);

/// Export to a named file as exportForm27A() does, without the file dialog; fallback: the
/// format for a name that asks for none. Returns whether the file was written; every failure
/// has been shown.
bool exportForm27ATo(const DataStore &store, MessageBoxes &boxes, const Form27AValues &values,
                     const QString &fileName, reportfile::Format fallback);

} // namespace form27aactions
