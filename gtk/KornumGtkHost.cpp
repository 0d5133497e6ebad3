#include <kornum/KornumGtkHost.h>

#include <kornum/KornumCanvas.h>
#include <kornum/Kornummsgs.h>
#include <kornum/PlatformInput.h>

#include <array>
#include <cmath>
#include <exception>
#include <utility>

namespace KornumGtkHost {
namespace {

constexpr const char* HostKey = "kornum-grid-host";

// GDK's key values and the key codes of the grid.
constexpr std::array<std::pair<guint, Kornumglobals::Word>, 24> KeyCodes{{
    {GDK_KEY_Left, Platform::vkLeft},         {GDK_KEY_KP_Left, Platform::vkLeft},
    {GDK_KEY_Right, Platform::vkRight},       {GDK_KEY_KP_Right, Platform::vkRight},
    {GDK_KEY_Up, Platform::vkUp},             {GDK_KEY_KP_Up, Platform::vkUp},
    {GDK_KEY_Down, Platform::vkDown},         {GDK_KEY_KP_Down, Platform::vkDown},
    {GDK_KEY_Page_Up, Platform::vkPrior},     {GDK_KEY_KP_Page_Up, Platform::vkPrior},
    {GDK_KEY_Page_Down, Platform::vkNext},    {GDK_KEY_KP_Page_Down, Platform::vkNext},
    {GDK_KEY_Home, Platform::vkHome},         {GDK_KEY_KP_Home, Platform::vkHome},
    {GDK_KEY_End, Platform::vkEnd},           {GDK_KEY_KP_End, Platform::vkEnd},
    {GDK_KEY_Return, Platform::vkReturn},     {GDK_KEY_KP_Enter, Platform::vkReturn},
    {GDK_KEY_Tab, Platform::vkTab},           {GDK_KEY_ISO_Left_Tab, Platform::vkTab},
    {GDK_KEY_Escape, Platform::vkEscape},     {GDK_KEY_BackSpace, Platform::vkBack},
    {GDK_KEY_Delete, Platform::vkDelete},     {GDK_KEY_F2, Platform::vkF2},
}};

Kornumglobals::Word KeyCode(guint keyval) {
    for (auto [gdk, code] : KeyCodes)
        if (gdk == keyval) return code;
    if (keyval == GDK_KEY_KP_Delete) return Platform::vkDelete;
    const guint upper = gdk_keyval_to_upper(keyval);
    if (upper >= GDK_KEY_A && upper <= GDK_KEY_Z) return Kornumglobals::Word(upper - GDK_KEY_A + 'A');
    return 0;
}

Platform::TShiftState ShiftState(GdkModifierType state) {
    Platform::TShiftState shift = 0;
    if (state & GDK_SHIFT_MASK) shift |= Platform::ssShift;
    if (state & GDK_CONTROL_MASK) shift |= Platform::ssCtrl;
    if (state & GDK_ALT_MASK) shift |= Platform::ssAlt;
    return shift;
}

// Runs an input on the grid; what it raises is shown to the user instead of crossing
// GTK's C frames. The grid is repainted when it took the input.
template <class Input>
bool Deliver(TKorGridHost& host, Input&& input) {
    bool handled = false;
    try {
        handled = input();
    } catch (const std::exception& error) {
        Kornummsgs::ErrorMsg(error.what());
        handled = true;
    }
    if (handled) host.Refresh();
    return handled;
}

TKorGridHost& HostOf(gpointer data) { return *static_cast<TKorGridHost*>(data); }

}  // namespace

// The GTK signal handlers, with the C signatures GTK calls.
struct TKorGridHost::Callbacks {
    static void Draw(GtkDrawingArea*, cairo_t* cr, int width, int height, gpointer data) {
        TKorGridHost& host = HostOf(data);
        try {
            KornumCanvas::TKorCairoCanvas canvas(cr);
            canvas.SetTextEncoding(Platform::TTextEncoding::Utf8);
            host.grid_.SetBounds(0, 0, width, height);
            host.grid_.Paint(canvas);
        } catch (const std::exception& error) {
            Kornummsgs::ErrorMsg(error.what());
        }
    }

    static gboolean KeyPressed(GtkEventControllerKey*, guint keyval, guint, GdkModifierType state, gpointer data) {
        TKorGridHost& host = HostOf(data);
        Kornumglobals::Word key = KeyCode(keyval);
        const Platform::TShiftState shift = ShiftState(state);
        if (key == 0) return FALSE;
        if (shift == Platform::ssCtrl && key == Platform::vkC) {
            gdk_clipboard_set_text(gtk_widget_get_clipboard(host.area_), host.grid_.CopyText().c_str());
            return TRUE;
        }
        if (shift == Platform::ssCtrl && key == Platform::vkV) {
            gdk_clipboard_read_text_async(gtk_widget_get_clipboard(host.area_), nullptr, PasteRead,
                                          g_object_ref(host.area_));
            return TRUE;
        }
        return Deliver(host, [&] {
            host.grid_.KeyDown(key, shift);
            return key == 0;
        });
    }

    // The clipboard's text arrived; the host may be gone by then, so it is looked up on
    // the widget, which the read kept alive.
    static void PasteRead(GObject* clipboard, GAsyncResult* result, gpointer data) {
        auto* area = static_cast<GtkWidget*>(data);
        char* text = gdk_clipboard_read_text_finish(GDK_CLIPBOARD(clipboard), result, nullptr);
        if (auto* host = static_cast<TKorGridHost*>(g_object_get_data(G_OBJECT(area), HostKey)); host && text)
            Deliver(*host, [&] {
                host->grid_.PasteText(text);
                return true;
            });
        g_free(text);
        g_object_unref(area);
    }

    static void Commit(GtkIMContext*, const char* text, gpointer data) {
        TKorGridHost& host = HostOf(data);
        Deliver(host, [&] {
            host.grid_.TextInput(text);
            return true;
        });
    }

    static void Pressed(GtkGestureClick* gesture, int, double x, double y, gpointer data) {
        TKorGridHost& host = HostOf(data);
        gtk_widget_grab_focus(host.area_);
        const guint button = gtk_gesture_single_get_current_button(GTK_GESTURE_SINGLE(gesture));
        const Platform::TMouseButton which = button == GDK_BUTTON_SECONDARY ? Platform::mbRight
                                             : button == GDK_BUTTON_MIDDLE  ? Platform::mbMiddle
                                                                            : Platform::mbLeft;
        const GdkModifierType state = gtk_event_controller_get_current_event_state(GTK_EVENT_CONTROLLER(gesture));
        Deliver(host, [&] {
            host.grid_.MouseDown(which, ShiftState(state), Kornumglobals::Integer(std::floor(x)),
                                 Kornumglobals::Integer(std::floor(y)));
            return true;
        });
    }

    // GTK scrolls by notches of 1 (or finer steps on a touchpad), positive towards the user.
    static gboolean Scrolled(GtkEventControllerScroll*, double, double dy, gpointer data) {
        TKorGridHost& host = HostOf(data);
        return Deliver(host, [&] {
            host.grid_.MouseWheel(Kornumglobals::Integer(std::lround(-dy * Platform::WheelDelta)));
            return true;
        });
    }

    static void FocusIn(GtkEventControllerFocus*, gpointer data) { gtk_im_context_focus_in(HostOf(data).im_); }
    static void FocusOut(GtkEventControllerFocus*, gpointer data) { gtk_im_context_focus_out(HostOf(data).im_); }
};

TKorGridHost::TKorGridHost(KornumGridEdit::TKorCustomGridEdit& Grid)
    : grid_(Grid), area_(gtk_drawing_area_new()), im_(gtk_im_multicontext_new()) {
    g_object_ref_sink(area_);
    g_object_set_data(G_OBJECT(area_), HostKey, this);
    gtk_widget_set_focusable(area_, TRUE);
    gtk_widget_set_hexpand(area_, TRUE);
    gtk_widget_set_vexpand(area_, TRUE);
    gtk_drawing_area_set_draw_func(GTK_DRAWING_AREA(area_), Callbacks::Draw, this, nullptr);

    GtkEventController* keys = gtk_event_controller_key_new();
    gtk_im_context_set_client_widget(im_, area_);
    gtk_event_controller_key_set_im_context(GTK_EVENT_CONTROLLER_KEY(keys), im_);
    g_signal_connect(keys, "key-pressed", G_CALLBACK(Callbacks::KeyPressed), this);
    g_signal_connect(im_, "commit", G_CALLBACK(Callbacks::Commit), this);
    gtk_widget_add_controller(area_, keys);

    GtkGesture* click = gtk_gesture_click_new();
    gtk_gesture_single_set_button(GTK_GESTURE_SINGLE(click), 0);  // every button
    g_signal_connect(click, "pressed", G_CALLBACK(Callbacks::Pressed), this);
    gtk_widget_add_controller(area_, GTK_EVENT_CONTROLLER(click));

    GtkEventController* scroll = gtk_event_controller_scroll_new(GTK_EVENT_CONTROLLER_SCROLL_VERTICAL);
    g_signal_connect(scroll, "scroll", G_CALLBACK(Callbacks::Scrolled), this);
    gtk_widget_add_controller(area_, scroll);

    GtkEventController* focus = gtk_event_controller_focus_new();
    g_signal_connect(focus, "enter", G_CALLBACK(Callbacks::FocusIn), this);
    g_signal_connect(focus, "leave", G_CALLBACK(Callbacks::FocusOut), this);
    gtk_widget_add_controller(area_, focus);
}

TKorGridHost::~TKorGridHost() {
    g_object_set_data(G_OBJECT(area_), HostKey, nullptr);
    gtk_drawing_area_set_draw_func(GTK_DRAWING_AREA(area_), nullptr, nullptr, nullptr);
    g_signal_handlers_disconnect_by_data(im_, this);
    GListModel* controllers = gtk_widget_observe_controllers(area_);
    for (guint i = 0; i < g_list_model_get_n_items(controllers); ++i) {
        GObject* controller = static_cast<GObject*>(g_list_model_get_item(controllers, i));
        g_signal_handlers_disconnect_by_data(controller, this);
        g_object_unref(controller);
    }
    g_object_unref(controllers);
    gtk_im_context_set_client_widget(im_, nullptr);
    g_object_unref(im_);
    g_object_unref(area_);
}

void TKorGridHost::Refresh() { gtk_widget_queue_draw(area_); }

}  // namespace KornumGtkHost
