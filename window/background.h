// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>

namespace window
{

/// Has pieces of work done one after the other, in a thread of its own. That has no events: a
/// reader looks for them as it loads, which would begin the next piece in the middle of one.
class Background : public QObject
{
public:
    /// `patience` is what the destructor has.
    explicit Background(std::chrono::seconds patience = std::chrono::hours(24));

    /// Waits for the piece that is being done; the others are not done any more. One that takes
    /// longer, as where the disk of another machine does not answer, is left behind with its
    /// thread.
    ~Background() override;

    Q_DISABLE_COPY(Background)

    /// `done` is called in the event loop of this object's thread, as long as this is there. `work`
    /// may not throw.
    void run(std::function<void()> work, std::function<void()> done = {});

    /// Whether some work is not done yet.
    bool isBusy() const;

protected:
    void customEvent(QEvent *event) override;

private:
    struct Shared;

    static void workOff(Shared &shared);

    const std::shared_ptr<Shared> shared;
    const std::chrono::seconds patience;
};

} // namespace window
