#include "EditWindow.h"

#include <kornum/KornumGtkHost.h>
#include <kornum/Kornummsgs.h>

#include <exception>
#include <filesystem>
#include <memory>
#include <string>

namespace KornumEdit {
namespace {

struct Window {
    explicit Window(EditDocument& edited) : document(edited) {}
    EditDocument& document;
    std::unique_ptr<KornumGtkHost::TKorGridHost> host;  // made once GTK has started
    GtkWidget* window = nullptr;
    GtkWidget* status = nullptr;
    bool changed = false;
    bool reported = false;  // a message was shown since the last operation began

    void ShowTitle() {
        const std::string name = std::filesystem::path(document.Path()).filename().string();
        gtk_window_set_title(GTK_WINDOW(window), ((changed ? "*" : "") + name + " - kornum-edit").c_str());
    }
    void Say(const std::string& text) {
        gtk_label_set_text(GTK_LABEL(status), text.c_str());
        reported = !text.empty();
    }

    void Save() {
        try {
            document.Grid().CommitEdit();
            document.Save();
            changed = false;
            Say("Saved " + document.Path());
        } catch (const std::exception& error) {
            Say(error.what());
        }
        ShowTitle();
        host->Refresh();
    }

    // Runs a matrix operation; what it raises, or shows through ErrorMsg, reaches the
    // status line.
    template <class Operation>
    void OnMatrix(Operation operation) {
        try {
            Say("");
            operation(*document.MatrixEdit());
            changed = changed || !reported;  // a singular matrix is reported and left as it was
        } catch (const std::exception& error) {
            Say(error.what());
        }
        ShowTitle();
        host->Refresh();
    }
};

void AddButton(GtkWidget* bar, const char* label, const char* action) {
    GtkWidget* button = gtk_button_new_with_label(label);
    gtk_actionable_set_action_name(GTK_ACTIONABLE(button), action);
    gtk_header_bar_pack_start(GTK_HEADER_BAR(bar), button);
}

void AddAction(GtkApplicationWindow* window, const char* name, void (*run)(GSimpleAction*, GVariant*, gpointer),
               Window* state) {
    GSimpleAction* action = g_simple_action_new(name, nullptr);
    g_signal_connect(action, "activate", G_CALLBACK(run), state);
    g_action_map_add_action(G_ACTION_MAP(window), G_ACTION(action));
    g_object_unref(action);
}

void Activate(GtkApplication* application, gpointer data) {
    auto* state = static_cast<Window*>(data);
    state->host = std::make_unique<KornumGtkHost::TKorGridHost>(state->document.Grid());
    state->window = gtk_application_window_new(application);
    gtk_window_set_default_size(GTK_WINDOW(state->window), 720, 480);
    GtkWidget* bar = gtk_header_bar_new();
    gtk_window_set_titlebar(GTK_WINDOW(state->window), bar);
    auto* window = GTK_APPLICATION_WINDOW(state->window);
    AddAction(window, "save", [](GSimpleAction*, GVariant*, gpointer s) { static_cast<Window*>(s)->Save(); }, state);
    AddButton(bar, "Save", "win.save");
    const char* const saveKeys[] = {"<Control>s", nullptr};
    gtk_application_set_accels_for_action(application, "win.save", saveKeys);
    if (state->document.MatrixEdit()) {
        AddAction(window, "inverse", [](GSimpleAction*, GVariant*, gpointer s) {
            static_cast<Window*>(s)->OnMatrix([](KornumMatrixEdit::TKorMatrixEdit& m) { m.Inverse(); });
        }, state);
        AddAction(window, "transpose", [](GSimpleAction*, GVariant*, gpointer s) {
            static_cast<Window*>(s)->OnMatrix([](KornumMatrixEdit::TKorMatrixEdit& m) { m.Transpose(); });
        }, state);
        AddButton(bar, "Inverse", "win.inverse");
        AddButton(bar, "Transpose", "win.transpose");
    }

    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
    gtk_box_append(GTK_BOX(box), state->host->Widget());
    state->status = gtk_label_new("");
    gtk_label_set_xalign(GTK_LABEL(state->status), 0);
    gtk_widget_set_margin_start(state->status, 6);
    gtk_widget_set_margin_top(state->status, 3);
    gtk_widget_set_margin_bottom(state->status, 3);
    gtk_box_append(GTK_BOX(box), state->status);
    gtk_window_set_child(GTK_WINDOW(state->window), box);

    state->document.Grid().OnChange = [state](KornumGridEdit::TKorCustomGridEdit&) {
        state->changed = true;
        state->ShowTitle();
    };
    state->ShowTitle();
    gtk_window_present(GTK_WINDOW(state->window));
    gtk_widget_grab_focus(state->host->Widget());
}

}  // namespace

int RunEditWindow(EditDocument& document) {
    Window state{document};
    // Messages the controls show (a singular matrix, a bad paste) go to the status line.
    Kornummsgs::TErrorMsgHandler previous = Kornummsgs::SetErrorMsgHandler([&state](const std::string& text) {
        if (state.status) state.Say(text);
    });
    GtkApplication* application = gtk_application_new(nullptr, G_APPLICATION_NON_UNIQUE);
    g_signal_connect(application, "activate", G_CALLBACK(Activate), &state);
    char name[] = "kornum-edit";
    char* arguments[] = {name, nullptr};
    const int status = g_application_run(G_APPLICATION(application), 1, arguments);
    g_object_unref(application);
    Kornummsgs::SetErrorMsgHandler(previous);
    return status;
}

}  // namespace KornumEdit
