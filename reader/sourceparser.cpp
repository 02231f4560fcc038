// SPDX-License-Identifier: MIT
#include "reader/sourceparser.h"

#include "reader/guardedreader.h"
#include "reader/quickreader.h"

#include <new>

bool parseSource(QIODevice &device, QDomDocument &document, Loading *loading)
{
    Loading unfollowed;
    Loading &followed = loading != nullptr ? *loading : unfollowed;
    const auto startOver = [&] {
        document.clear();
        followed.positions.clear();
        followed.failure = LoadFailure::None;
    };
    try {
        startOver();
        // What can be read only once is left to the reader that reads everything.
        if (!device.isSequential()) {
            if (readQuickly(device, document, followed))
                return true;
            if (followed.failure == LoadFailure::Stopped) {
                document.clear();
                return false;
            }
            startOver();
            device.seek(0);
        }
        if (readGuarded(device, document, followed))
            return true;
    } catch (const std::bad_alloc &) {
        followed.failure = LoadFailure::OutOfMemory;
    }
    document.clear();
    return false;
}
