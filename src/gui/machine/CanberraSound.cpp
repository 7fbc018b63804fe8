// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/CanberraSound.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QLibrary>

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace tressel {

namespace {

// The three calls of libcanberra that are needed, as its version 0 interface has them; 0 means success.
using CreateContext = int (*)(void **context);
using PlaySound = int (*)(void *context, std::uint32_t id, ...);
using ChangeProperties = int (*)(void *context, ...);

constexpr int libraryVersion = 0;

/// Whether there is anything to hear a sound from: a sound server, a card, or the driver that the user
/// names. Without, the library's own drivers would complain on standard error.
bool HasOutput()
{
    if (qEnvironmentVariableIsSet("CANBERRA_DRIVER") || qEnvironmentVariableIsSet("PULSE_SERVER")
        || QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/pulse/native")))
        return true;
    return !QDir(QStringLiteral("/proc/asound")).entryList({QStringLiteral("card[0-9]*")}).isEmpty();
}

} // namespace

/// What the thread and the sound share; it lives as long as either.
class CanberraSound::Player {
public:
    explicit Player(QString libraryName)
        : library(std::move(libraryName))
    {
    }

    bool Ask(const QString &file, const std::shared_ptr<Player> &self);
    void End();

private:
    void Run();
    bool Load();

    std::mutex mutex;
    std::condition_variable asked;
    QByteArray wanted;
    bool started = false;
    bool ended = false;
    bool silent = false;

    // Of the thread alone.
    QString library;
    void *context = nullptr;
    PlaySound play = nullptr;
};

bool CanberraSound::Player::Ask(const QString &file, const std::shared_ptr<Player> &self)
{
    const std::scoped_lock lock(mutex);
    if (silent)
        return false;
    if (!started) {
        try {
            std::thread([self] { self->Run(); }).detach();
        } catch (const std::system_error &) {
            silent = true;
            return false;
        }
        started = true;
    }
    wanted = QFile::encodeName(file);
    asked.notify_one();
    return true;
}

void CanberraSound::Player::End()
{
    const std::scoped_lock lock(mutex);
    ended = true;
    asked.notify_one();
}

void CanberraSound::Player::Run()
{
    const bool isLoaded = Load();
    std::unique_lock lock(mutex);
    silent = !isLoaded;
    while (!silent && !ended) {
        if (wanted.isEmpty()) {
            asked.wait(lock);
            continue;
        }
        const QByteArray file = std::exchange(wanted, {});
        lock.unlock();
        play(context, 0, "media.filename", file.constData(), "media.role", "event", nullptr);
        lock.lock();
    }
}

bool CanberraSound::Player::Load()
{
    if (!HasOutput())
        return false;
    // Never unloaded: the library may have threads of its own.
    QLibrary loaded(library, libraryVersion);
    const auto create = reinterpret_cast<CreateContext>(loaded.resolve("ca_context_create"));
    const auto change = reinterpret_cast<ChangeProperties>(loaded.resolve("ca_context_change_props"));
    play = reinterpret_cast<PlaySound>(loaded.resolve("ca_context_play"));
    if (!create || !change || !play || create(&context) != 0)
        return false;
    change(context, "application.name", "Tressel", nullptr);
    return true;
}

CanberraSound::CanberraSound(const QString &library)
    : player(std::make_shared<Player>(library))
{
}

CanberraSound::~CanberraSound()
{
    player->End();
}

bool CanberraSound::Play(const QString &file)
{
    return QFile::exists(file) && player->Ask(file, player);
}

} // namespace tressel
