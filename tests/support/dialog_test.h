// For tests of dialogs: a small world with a window, and a person who knows what to do in each dialog to
// come.
#pragma once

#include "resources/dialog_templates.h"
#include "support/window.h"
#include "support/world.h"

namespace quillet {

class DialogTest : public World {
  protected:
    // What is left of the scripts at the end are dialogs that never came.
    ~DialogTest() override {
        EXPECT_TRUE(headlessWindow.dialogScripts.empty());
        if (headlessWindow.modeless != nullptr) CloseModeless(*headlessWindow.modeless);
    }

    // In the next dialog that has no script yet.
    static void InDialog(std::function<void(Dialog&)> script) {
        headlessWindow.dialogScripts.push_back(std::move(script));
    }

    FreshWindow window;
};

}  // namespace quillet
