#include "dialogs/about.h"

#include "resources/dialog_templates.h"
#include "resources/strings.h"
#include "store/bitmap_files.h"

namespace quillet {

void ShowAboutBox() {
    FilePath path(ResourceString(StringId::GraphicsFolder));
    path.Append("\\icon.bmp");
    const std::optional<Picture> icon = LoadPicture(path);
    RunDialog(AboutControls::kTemplate, [&](Dialog& dialog, const DialogEvent& event) {
        if (event.kind == DialogEvent::Kind::Opened) {
            SetPicture(dialog, AboutControls::kIcon, icon ? &*icon : nullptr);
        } else if (event.kind == DialogEvent::Kind::Pressed) {
            CloseDialog(dialog, event.control);
        }
    });
}

}  // namespace quillet
