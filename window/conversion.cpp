// SPDX-License-Identifier: MIT
#include "window/conversion.h"

#include <utility>

namespace window
{

Conversion::Conversion(delivery::RunOptions options, delivery::Job job)
    : options(std::move(options)), job(std::move(job))
{
}

Conversion::~Conversion()
{
    stop();
    wait();
}

void Conversion::run()
{
    delivery::Run conversion(options, {job});
    conversion.tell = [this](const delivery::Outcome &outcome) { ending = outcome; };
    conversion.progressed = [this](double share, const QString &) { read = share; };
    conversion.done = [this] { quit(); };
    conversion.begin();
    exec();
    conversion.stop();
}

} // namespace window
