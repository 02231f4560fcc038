// SPDX-License-Identifier: MIT
#include "window/loader.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <utility>

namespace window
{

constexpr std::chrono::seconds patience(2); // of who closes the window

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
    leftBehind.erase(std::remove_if(leftBehind.begin(), leftBehind.end(),
                                    [](const auto &one) { return !one->isBusy(); }),
                     leftBehind.end());
    if (background && background->isBusy())
        leftBehind.push_back(std::move(background));
    if (!background)
        background = std::make_unique<Background>(patience);
    const auto attempt = std::make_shared<Attempt>();
    attempt->path = path;
    current = attempt;
    const auto load = [attempt, purchase] {
        const auto goesOn = [&attempt](qint64 done, qint64 total) {
            attempt->done = done;
            attempt->total = total;
            return !attempt->isStopped;
        };
        attempt->result = openSource(attempt->path, purchase, goesOn);
    };
    background->run(load, [this, attempt, own = background.get()] {
        if (attempt == current) {
            current.reset();
            opened(std::move(attempt->result));
        } else {
            // To free a tree takes its time.
            own->run([attempt] { attempt->result = {}; });
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
