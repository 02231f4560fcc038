// SPDX-License-Identifier: MIT
#pragma once

#include "reader/loading.h"

#include <QIODevice>
#include <QXmlInputSource>

// The toolkit calls its own source of decoded text deprecated.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

/// The text of a source, decoded piece by piece, which counts what goes through it. It ends early,
/// which no well-formed source does, where a limit or whoever follows the load says so.
class Source : public QXmlInputSource
{
public:
    /// `device` is open for reading. Both outlive the source.
    Source(QIODevice &device, Loading &loading);

    void fetchData() override;

    /// To be told at the root element.
    void leaveProlog() { inProlog = false; }

    /// The characters that have been fetched.
    qint64 size() const { return characters; }

    /// Whether all of it has been fetched.
    bool isAtEnd() const { return device.atEnd() && loading.failure == LoadFailure::None; }

private:
    void endHere(LoadFailure failure);

    QIODevice &device;
    Loading &loading;
    qint64 characters = 0;
    int pieces = 0;
    int brackets = 0;
    bool inProlog = true;
};

QT_WARNING_POP
