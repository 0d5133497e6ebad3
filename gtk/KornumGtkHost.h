/// @file
/// `KornumGtkHost::TKorGridHost`: a GTK 4 widget showing one of the grid edit controls
/// (`KornumVectorEdit::TKorVectorEdit`, `KornumVectorEdit::TKorLabelledVectorEdit`,
/// `KornumMatrixEdit::TKorMatrixEdit`). Part of the optional library kornum_gtk.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/KornumGridEdit.h>

#include <gtk/gtk.h>

/// The GTK host module (library kornum_gtk): the grid edits in a GTK 4 window.
KORNUM_EXPORT_BEGIN
namespace KornumGtkHost {

/// A focusable `GtkDrawingArea` that paints a grid edit through the Cairo canvas (reading
/// text as UTF-8) and passes it GTK's input: keys (translated to `Platform` key codes and
/// shift states), text from the input method, clicks, scrolling and focus. Ctrl+C copies
/// the selection to the system clipboard (`CopyText`), Ctrl+V pastes its text at the
/// current cell (`PasteText`); a failure raised by the grid is shown through
/// `Kornummsgs::ErrorMsg`. Keys the grid does not handle go on to the window, so that
/// its shortcuts work.
///
/// The host neither owns the grid nor outlives it: both must live while the widget is
/// shown. The widget is GTK's, to be packed into a window; the host keeps a reference to
/// it and drops its handlers when destroyed.
class TKorGridHost {
public:
    /// A widget showing Grid, which gets the keyboard focus when clicked.
    explicit TKorGridHost(KornumGridEdit::TKorCustomGridEdit& Grid);
    /// Disconnects the widget from the grid and releases the host's reference.
    ~TKorGridHost();
    /// Not copyable: the widget calls back into this host.
    TKorGridHost(const TKorGridHost&) = delete;
    /// Not assignable.
    TKorGridHost& operator=(const TKorGridHost&) = delete;

    /// The widget.
    GtkWidget* Widget() const noexcept { return area_; }
    /// The grid shown.
    KornumGridEdit::TKorCustomGridEdit& Grid() const noexcept { return grid_; }
    /// Repaints the grid (after the program changed it).
    void Refresh();

private:
    struct Callbacks;
    KornumGridEdit::TKorCustomGridEdit& grid_;
    GtkWidget* area_;
    GtkIMContext* im_;
};

}  // namespace KornumGtkHost
KORNUM_EXPORT_END
