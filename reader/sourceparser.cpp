// SPDX-License-Identifier: MIT
#include "reader/sourceparser.h"

#include "reader/guardedreader.h"
#include "reader/quickreader.h"

#include <new>

bool parseSource(QIODevice &device, QDomDocument &document, Loading *loading)
{
    Loading unfollowed;
    Loading &followed = loading != nullptr ? *loading : unfollowed;
    document.clear();
    followed.startOver();
    try {
        // What can be read only once is left to the reader that reads everything.
        if (!device.isSequential()) {
            if (readQuickly(device, document, followed))
                return true;
            document.clear();
            if (followed.failure != LoadFailure::Stopped) {
                followed.startOver();
                device.seek(0);
            }
        }
        if (followed.failure == LoadFailure::None && readGuarded(device, document, followed))
            return true;
    } catch (const std::bad_alloc &) {
        followed.failure = LoadFailure::OutOfMemory;
    }
    document.clear();
    return false;
}
