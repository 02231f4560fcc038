// SPDX-License-Identifier: MIT
#pragma once

namespace window
{

/// Called once, ahead of everything else.
void preparePlatform();

/// Called once, as soon as there is an application object.
void prepareApplication();

/// Whether the program was started as one of its own workers.
bool isWorker(int argc, char **argv);

/// Takes orders of the window. What comes back is the exit code of the process.
int beWorker(int argc, char **argv);

} // namespace window
