// The window of kornum-edit: the grid of a document, a header bar with Save (Ctrl+S) and,
// for a matrix, Inverse and Transpose, and a status line for messages.
#pragma once

#include "EditDocument.h"

namespace KornumEdit {

// Runs the GTK application on the document until its window is closed; returns the exit
// status.
int RunEditWindow(EditDocument& document);

}  // namespace KornumEdit
