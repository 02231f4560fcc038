// SPDX-License-Identifier: MIT
//
// What a batch and its workers say to each other: a line of JSON each.
#pragma once

#include "survey/survey.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace delivery
{

/// What a worker is asked for. Request::goesOn stays behind.
struct Order {
    int id = 0; ///< for whoever gives it
    survey::Request request;
    QString newFile; ///< where the source is converted to; null: it is only checked
};

QByteArray toLine(const Order &order);
std::optional<Order> orderFrom(const QByteArray &line);

/// How far a worker has got with loading the source, as Request::goesOn hears it.
struct Progress {
    qint64 done = 0;
    qint64 total = 0;
};

QByteArray toLine(const Progress &progress);

/// The last line about an order; only the survey counts if the source was to be checked.
QByteArray toLine(const survey::Conversion &answer);

/// A line of a worker: one of the two, or neither if it makes no sense.
struct Reply {
    std::optional<Progress> progress;
    std::optional<survey::Conversion> answer;
};

Reply replyFrom(const QByteArray &line);

} // namespace delivery
