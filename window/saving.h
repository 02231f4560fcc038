// SPDX-License-Identifier: MIT
#pragma once

#include "window/conversion.h"
#include "window/desk.h"

#include <memory>

class QSettings;
class QWidget;

namespace window
{

class InfoBar;

/// Writes what there is to write of a source: its exchange file, and its findings as a table.
class Saving : public QObject
{
public:
    Saving(Desk &desk, QSettings &settings, InfoBar &infoBar, QWidget &window);

    /// Told when a conversion has begun or ended.
    std::function<void()> changed;

    // Ask where to, for the source that is on the desk now: another one may be there by then.
    void askForDestination();
    void askForTable();

    /// Tries to put the exchange file of a source there. Only one can be converted at a time.
    void convert(const Source &source, const QString &destination);

    /// Tries to put a table of the findings of a source there.
    void saveFindings(const std::shared_ptr<const Source> &source, const QString &path);

    bool isConverting() const { return conversion != nullptr; }

    /// How much of it is converted, from 0 to 1.
    double share() const { return conversion ? conversion->share() : 0; }

    /// Stops the conversion, if there is one.
    void stop();

private:
    void endConversion();

    Desk &desk;
    QSettings &settings;
    InfoBar &infoBar;
    QWidget &window;
    std::unique_ptr<Conversion> conversion; ///< null where none is going on
};

} // namespace window
