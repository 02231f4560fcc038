// SPDX-License-Identifier: MIT
#pragma once

#include "window/arrangement.h"
#include "window/background.h"
#include "window/sourcereader.h"

#include <functional>
#include <memory>

namespace window
{

/// The source that is shown, and what is done with it off the thread of the window.
class Desk
{
public:
    Desk() = default;
    ~Desk();
    Q_DISABLE_COPY(Desk)

    /// Never null.
    const std::shared_ptr<const Source> &source() const { return shown; }

    /// Puts another source here. What comes back is for putAway(), once nothing shows it any more.
    Opened replace(Opened opened);
    void putAway(Opened opened);

    /// Told where memory ran out while goods were arranged or rows collected: the reader is gone
    /// then if `isReaderLost`.
    std::function<void(bool isReaderLost)> ranOut;

    /// Has this done there, and tells here that it is. What is done may not throw.
    void run(std::function<void()> work, std::function<void()> tell);

    /// The latest one counts: those before it are not told of any more.
    void arrange(const Arrangement &arrangement,
                 std::function<void(const QVector<int> &places)> tell);

    /// Whether rows can be collected: there is a source, none are being collected, and memory never
    /// ran out while some were: what is left of the reader is dropped then.
    bool hasReader() const { return reader != nullptr; }

    /// Has the reader collect rows there, and tells of it here, unless there is another source
    /// then.
    void collect(const std::function<void(SourceReader &reader)> &collect,
                 std::function<void(SourceReader &reader)> tell);

private:
    std::shared_ptr<const Source> shown = std::make_shared<Source>();
    std::unique_ptr<SourceReader> reader;
    std::shared_ptr<std::atomic_bool> isOutdated; ///< the latest arrangement
    Background background;
};

} // namespace window
