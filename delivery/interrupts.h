// SPDX-License-Identifier: MIT
//
// Ctrl-C, and what else asks a program to end. Implemented in the platform files.
#pragma once

#include <QObject>

#include <functional>
#include <memory>

namespace delivery
{

/// For as long as it lives, an interrupt does not end the process, but is heard in the event loop
/// of the thread that created it. There is one at a time. What the process was told to ignore it
/// goes on ignoring.
class Interrupts
{
public:
    explicit Interrupts(std::function<void()> heard);
    ~Interrupts();
    Q_DISABLE_COPY(Interrupts)

    /// The exit code that tells of the latest interrupt, heard or not: 130 for Ctrl-C, 143 where
    /// the process was to end; 0 if there was none.
    static int exitCode();

private:
    std::unique_ptr<QObject> listener;
};

} // namespace delivery
