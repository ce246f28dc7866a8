#include "platform/qt/display_check.h"

#include <dlfcn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QDir>
#include <QLibraryInfo>
#include <algorithm>
#include <chrono>
#include <future>
#include <string_view>
#include <thread>

namespace quillet {
namespace {

constexpr std::chrono::seconds kPatience{5};

std::string Environment(const char* name) { return qgetenv(name).toStdString(); }

// Whom the toolkit is told to talk to: "xcb", "wayland", "offscreen" ...; empty when it may choose.
std::string ChosenPlugin(std::span<char*> commandLine) {
    std::string chosen = Environment("QT_QPA_PLATFORM");
    for (std::size_t i = 1; i + 1 < commandLine.size(); ++i) {
        const std::string_view argument = commandLine[i];
        if (argument == "-platform" || argument == "--platform") chosen = commandLine[i + 1];
    }
    return chosen.substr(0, chosen.find_first_of(":;"));
}

bool IsInstalled(const std::string& plugin) {
    const QDir folder(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
    return !folder.entryList({QStringLiteral("libq%1*").arg(QString::fromStdString(plugin))}).isEmpty();
}

// Without the toolkit: the first thread that it is called on, it takes for the program's main one.
bool ConnectToX() {
    struct Connection;
    void* xcb = dlopen("libxcb.so.1", RTLD_NOW | RTLD_LOCAL);
    if (xcb == nullptr) return true;  // the toolkit will say
    const auto connect = reinterpret_cast<Connection* (*)(const char*, int*)>(dlsym(xcb, "xcb_connect"));
    const auto hasError = reinterpret_cast<int (*)(Connection*)>(dlsym(xcb, "xcb_connection_has_error"));
    const auto disconnect = reinterpret_cast<void (*)(Connection*)>(dlsym(xcb, "xcb_disconnect"));
    if (connect == nullptr || hasError == nullptr || disconnect == nullptr) return true;
    Connection* connection = connect(nullptr, nullptr);
    const bool answers = hasError(connection) == 0;
    disconnect(connection);
    return answers;
}

// A server that is stopped, or a network that is gone, keeps the caller waiting: not longer than our
// patience.
bool XAnswers() {
    std::promise<bool> promise;
    std::future<bool> answer = promise.get_future();
    std::thread([promise = std::move(promise)]() mutable { promise.set_value(ConnectToX()); }).detach();
    return answer.wait_for(kPatience) == std::future_status::ready && answer.get();
}

bool WaylandAnswers() {
    std::string path = Environment("WAYLAND_DISPLAY");
    if (!path.starts_with('/')) path = Environment("XDG_RUNTIME_DIR") + "/" + path;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) return false;
    std::ranges::copy(path, address.sun_path);
    const int file = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (file < 0) return false;
    const bool answers = connect(file, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    close(file);
    return answers;
}

}  // namespace

DisplayFault FindDisplayFault(std::span<char*> commandLine) {
    const std::string plugin = ChosenPlugin(commandLine);
    if (!plugin.empty() && !IsInstalled(plugin)) {
        return "there is no platform \"" + plugin + "\" (QT_QPA_PLATFORM) to show a window on";
    }
    const bool mayUseX = plugin.empty() || plugin == "xcb";
    const bool mayUseWayland = plugin.empty() || plugin.starts_with("wayland");
    if (!mayUseX && !mayUseWayland) return {};
    const std::string x = Environment("DISPLAY");
    const std::string wayland = Environment("WAYLAND_DISPLAY");
    if (mayUseWayland && !wayland.empty() && IsInstalled("wayland") && WaylandAnswers()) return {};
    if (!mayUseX) return "the Wayland display \"" + wayland + "\" does not answer";
    if (x.empty()) return "there is no display to show a window on (DISPLAY is not set)";
    if (!XAnswers()) return "the display \"" + x + "\" does not answer";
    return {};
}

}  // namespace quillet
