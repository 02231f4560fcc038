// SPDX-License-Identifier: MIT
#include "window/loader.h"

#include <atomic>
#include <utility>

namespace window
{

struct Loader::Attempt {
    QString path;
    std::atomic_bool isStopped = false;
    std::atomic<qint64> done = 0;
    std::atomic<qint64> total = 0;
    Opened result;
};

void Loader::open(const QString &path, bool purchase)
{
    stop();
    const auto attempt = std::make_shared<Attempt>();
    attempt->path = path;
    current = attempt;
    const auto load = [attempt, purchase] {
        const auto goesOn = [&attempt](qint64 done, qint64 total) {
            attempt->done = done;
            attempt->total = total;
            return !attempt->isStopped;
        };
        if (!attempt->isStopped)
            attempt->result = openSource(attempt->path, purchase, goesOn);
    };
    background.run(load, [this, attempt] {
        if (attempt == current) {
            current.reset();
            opened(std::move(attempt->result));
        } else {
            // To free a tree takes its time.
            background.run([attempt] { attempt->result = {}; });
        }
    });
}

void Loader::stop()
{
    if (current)
        current->isStopped = true;
    current.reset();
}

QString Loader::path() const
{
    return current ? current->path : QString();
}

double Loader::share() const
{
    if (!current || current->total <= 0)
        return -1;
    return double(current->done) / double(current->total);
}

} // namespace window
