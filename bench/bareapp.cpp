// SPDX-License-Identifier: MIT
//
// The floor of a small run: starts the toolkit and ends.
#include <QCoreApplication>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return 0;
}
