// SPDX-License-Identifier: MIT
#pragma once

#include "delivery/run.h"

#include <QThread>

#include <atomic>
#include <optional>

namespace window
{

/// A conversion, in a thread of its own: also what comes behind its worker may take a while, such
/// as to flush the new file. Its signal finished() tells when it has ended.
class Conversion : public QThread
{
public:
    Conversion(delivery::RunOptions options, delivery::Job job);

    /// Stops it, and waits until it has ended.
    ~Conversion() override;

    Q_DISABLE_COPY(Conversion)

    /// Unless it puts the new file in place just now, the destination stays as it is.
    void stop() { quit(); }

    /// How much of the source is read, from 0 to 1.
    double share() const { return read; }

    /// Nothing if it was stopped. For when it has ended.
    const std::optional<delivery::Outcome> &outcome() const { return ending; }

protected:
    void run() override;

private:
    const delivery::RunOptions options;
    const delivery::Job job;
    std::atomic<double> read = 0;
    std::optional<delivery::Outcome> ending;
};

} // namespace window
