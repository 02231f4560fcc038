// SPDX-License-Identifier: MIT
#pragma once

#include "window/background.h"
#include "window/sourcereader.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace window
{

/// Opens one source after the other, off the thread that asks for it. One that was stopped and does
/// not heed it, as where a disk does not answer, is in nobody's way.
class Loader
{
public:
    Loader() = default;
    ~Loader() { stop(); }
    Q_DISABLE_COPY(Loader)

    /// Told of each source that was opened, or could not be; not of one that was stopped.
    std::function<void(Opened opened)> opened;

    /// Stops what is being opened.
    void open(const QString &path, bool purchase);
    void stop();

    bool isLoading() const { return current != nullptr; }

    /// Of what is being opened; null if nothing is.
    QString path() const;

    /// How much of it is read, from 0 to 1; negative where nobody knows.
    double share() const;

private:
    struct Attempt;

    std::shared_ptr<Attempt> current;
    std::unique_ptr<Background> background;
    std::vector<std::unique_ptr<Background>> leftBehind;
};

} // namespace window
