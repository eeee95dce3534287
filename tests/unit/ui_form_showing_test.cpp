// The window system hears that a loaded form is about to show, once per
// showing, with the form already visible in the model.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ui/backend.h"
#include "ui/form.h"

namespace {

struct RecordingBackend : qs::ui::Backend {
    std::vector<std::string> calls;
    void FormLoaded(qs::ui::Form&) override { calls.push_back("loaded"); }
    void FormShowing(qs::ui::Form& form) override { calls.push_back(form.Visible() ? "showing" : "showing hidden"); }
    void FormUnloaded(qs::ui::Form&) override { calls.push_back("unloaded"); }
    void RunModal(qs::ui::Form& form) override {
        calls.push_back("modal");
        form.Hide();
    }
};

TEST(UiFormShowing, ShowAndModalShowTellTheBackendBeforeTheFormAppearsAndASecondShowDoesNot) {
    qs::ui::Form pane{L"frmPane", qs::ui::FormStyle::Dialog};
    RecordingBackend backend;
    pane.SetBackend(&backend);
    pane.SetWindowWaitsForShow(true);
    EXPECT_TRUE(pane.WindowWaitsForShow());
    pane.Load();
    pane.Show();
    pane.Show();
    pane.Hide();
    pane.ShowModal();
    EXPECT_EQ(backend.calls, (std::vector<std::string>{"loaded", "showing", "showing", "modal"}));
}

TEST(UiFormShowing, TheLoadEventRunsBeforeTheWindowIsMadeAndAReloadInsideItMakesOneWindow) {
    qs::ui::Form pane{L"frmPane", qs::ui::FormStyle::Dialog};
    RecordingBackend backend;
    pane.SetBackend(&backend);
    bool reload = true;
    pane.LoadEvent = [&] {
        backend.calls.push_back("load event");
        if (!reload) return;
        reload = false;
        pane.Unload();
        pane.Load();
    };
    pane.Load();
    EXPECT_TRUE(pane.IsLoaded());
    EXPECT_EQ(backend.calls, (std::vector<std::string>{"load event", "unloaded", "load event", "loaded"}));
}

TEST(UiFormShowing, AFormUnloadedByItsLoadEventGetsNoWindow) {
    qs::ui::Form pane{L"frmPane", qs::ui::FormStyle::Dialog};
    RecordingBackend backend;
    pane.SetBackend(&backend);
    pane.LoadEvent = [&pane] { pane.Unload(); };
    pane.Load();
    EXPECT_FALSE(pane.IsLoaded());
    EXPECT_EQ(backend.calls, (std::vector<std::string>{"unloaded"}));
}

}  // namespace
