#pragma once

#include <QIcon>

namespace brindlex {

/// The program's icon for its windows, in every size that the build has drawn. Takes 110 kB. Made
/// after the application object.
QIcon programIcon();

} // namespace brindlex
