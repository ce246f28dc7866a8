#include "platform/sound.h"

#include <unistd.h>

#include <QAudioFormat>
#include <QAudioSink>
#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMediaDevices>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "platform/qt/desktop.h"
#include "platform/shared/wave_file.h"

namespace quillet {
namespace {

// How a sound that was handed to the player fares.
enum class Fate : int { Waiting, Playing, Over };

// A sound on its way: shared by the program and the player, who may still be busy with it when the program
// has given up waiting.
struct Request {
    QByteArray file;
    WaveSound wave;
    std::atomic<Fate> fate{Fate::Waiting};
};
using RequestPointer = std::shared_ptr<Request>;

constexpr qint64 kLargestFile = 64 * 1024 * 1024;
// Milliseconds that a device may take to begin. A click that is late is not worth waiting for.
std::uint32_t MaxStart(const WaveSound& wave) {
    return std::min<std::uint32_t>(100 + wave.Milliseconds(), 1500);
}

constexpr int kTail = 300;  // milliseconds that are still in the device when all was handed to it
constexpr unsigned long kMaxEnd = 1000;

// Plays one sound after another. Lives on a thread of its own: neither the devices, which may take their
// time, nor the program, when it computes, keeps the other waiting.
class Player : public QObject {
  public:
    void Play(const RequestPointer& request);
    void Stop();

  private:
    void HearState(QAudio::State state);

    RequestPointer current;
    QElapsedTimer sinceStart;  // of the current one
    QBuffer samples;
    std::unique_ptr<QAudioSink> sink;
};

void Player::Stop() {
    if (sink) sink->disconnect(this);
    sink.reset();
    samples.close();
    if (current) current->fate = Fate::Over;
    current.reset();
}

void Player::HearState(QAudio::State state) {
    if (state == QAudio::ActiveState && current->fate == Fate::Waiting) {
        sinceStart.start();
        current->fate = Fate::Playing;
    }
    if (state == QAudio::StoppedState) return Stop();
    if (state != QAudio::IdleState) return;
    // All was handed to the device. A device that is left open would go on asking for more.
    const auto left = static_cast<qint64>(current->wave.Milliseconds()) - sinceStart.elapsed();
    QTimer::singleShot(static_cast<int>(std::max<qint64>(left, 0)) + kTail, this, [this, ended = current] {
        if (current == ended) Stop();
    });
}

void Player::Play(const RequestPointer& request) {
    Stop();
    current = request;
    QAudioFormat format;
    format.setChannelCount(request->wave.channels);
    format.setSampleRate(request->wave.samplesPerSecond);
    format.setSampleFormat(request->wave.bitsPerSample == 8 ? QAudioFormat::UInt8 : QAudioFormat::Int16);
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull() || !device.isFormatSupported(format)) return Stop();
    const auto wave = request->wave.samples;
    samples.setData(reinterpret_cast<const char*>(wave.data()), static_cast<int>(wave.size()));
    samples.open(QIODevice::ReadOnly);
    sink = std::make_unique<QAudioSink>(device, format);
    // Not from inside the device's own call: what happens to it may end it.
    connect(
        sink.get(), &QAudioSink::stateChanged, this, [this](QAudio::State state) { HearState(state); },
        Qt::QueuedConnection);
    sink->start(&samples);
    if (sink->error() != QAudio::NoError) Stop();
}

struct SoundState {
    QThread* thread = nullptr;
    Player* player = nullptr;  // lives on it
    RequestPointer last;
};
SoundState state;

QtMessageHandler handlerBefore = nullptr;

// A desktop without a sound device is no news: what the toolkit says about it stays unsaid.
void SayAllButSounds(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type != QtFatalMsg && QThread::currentThread() == state.thread) return;
    if (handlerBefore != nullptr) handlerBefore(type, context, text);
}

void StartPlayer() {
    if (state.thread != nullptr) return;
    state.thread = new QThread;
    state.player = new Player;
    state.player->moveToThread(state.thread);
    handlerBefore = qInstallMessageHandler(SayAllButSounds);
    state.thread->start();
}

// The sound of a file, handed to the player; none when there is nothing to play, or when the player is still
// stuck with an earlier one.
RequestPointer Hand(const std::string& path) {
    if (state.last && state.last->fate == Fate::Waiting) return nullptr;
    const QString name = QFile::decodeName(QByteArray::fromStdString(path));
    if (!QFileInfo(name).isFile()) return nullptr;
    QFile file(name);
    if (file.size() > kLargestFile || !file.open(QIODevice::ReadOnly)) return nullptr;
    const auto request = std::make_shared<Request>();
    request->file = file.readAll();
    const auto wave = ReadWave({reinterpret_cast<const std::uint8_t*>(request->file.constData()),
                                static_cast<std::size_t>(request->file.size())});
    if (!wave || wave->samples.empty()) return nullptr;
    request->wave = *wave;
    StartPlayer();
    QMetaObject::invokeMethod(
        state.player, [request] { state.player->Play(request); }, Qt::QueuedConnection);
    return state.last = request;
}

// A device that hangs keeps its thread, and with it what the toolkit wants to lock when the program exits:
// skips the rest of that.
void EndWithoutWaiting() {
#ifdef __GLIBC__
    on_exit(
        [](int status, void*) {
            std::fflush(nullptr);
            _exit(status);
        },
        nullptr);
#endif
}

}  // namespace

void StartSound(const std::string& path) { Hand(path); }

void PlaySound(const std::string& path) {
    const RequestPointer sound = Hand(path);
    if (!sound) return;
    NapUntil(DeadlineIn(MaxStart(sound->wave)), [&] { return sound->fate != Fate::Waiting; });
    if (sound->fate != Fate::Playing) return;
    NapUntil(DeadlineIn(sound->wave.Milliseconds()), [&] { return sound->fate == Fate::Over; });
}

void EndSounds() {
    if (state.thread == nullptr) return;
    QMetaObject::invokeMethod(
        state.player, [] { state.player->Stop(); }, Qt::QueuedConnection);
    state.thread->quit();
    if (state.thread->wait(kMaxEnd)) {
        delete state.player;
        delete state.thread;
    } else {
        EndWithoutWaiting();
    }
    qInstallMessageHandler(handlerBefore);
    state = {};
}

}  // namespace quillet
