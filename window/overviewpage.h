// SPDX-License-Identifier: MIT
#pragma once

#include "window/overview.h"

#include <QScrollArea>

namespace window
{

/// A picture of the whole source.
class OverviewPage : public QScrollArea
{
public:
    OverviewPage();

    void show(const Source &source);

private:
    class Canvas;

    Canvas *canvas;
};

} // namespace window
