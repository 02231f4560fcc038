// SPDX-License-Identifier: MIT
//
// The files that the command line means.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace batch
{

struct Source {
    QString path;
    QString message; ///< why it can't be read, where that is known already; null otherwise
};

/// The sources among `names`: each itself, or if it is a folder all *.xml of that.
QVector<Source> findSources(const QStringList &names);

/// Where in the folder `into` the exchange file of a source goes.
QString destinationIn(const QString &into, const QString &source);

} // namespace batch
