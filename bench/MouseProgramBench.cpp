// What a user of a mouse feels of the whole program, beside its peers: all on one X server with a
// mouse that is played below it, one after the other and each alone. Peers that are not installed
// are said to be so. For figures that mean something: a release build on a quiet machine.

#include "MouseFigures.h"

#include <QCoreApplication>

#include <cstdio>

int main(int count, char** arguments)
{
    using namespace brindlex;
    const QCoreApplication application(count, arguments);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    MouseDesk desk;
    // The same shell for all.
    desk.desktop.setVariable("SHELL", "/bin/sh");
    const TargetWindow target;
    measureActions(desk);
    measureWheels(desk, target);
    measureSmoothness(desk, target);
    measureMotions(desk, target);
}
