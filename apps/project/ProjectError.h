#pragma once

#include <ORVTListview/Error.h>

namespace ORVTListview {

// The numbers of the errors that reading and saving a project raise. The description
// names the file first, then the place in it, then what is wrong.
enum ProjectErrorNumber : qint32 {
    FileNotReadable = ObjectErrorBase + 1,
    TextNotUtf8 = ObjectErrorBase + 2,
    ProjectNotValid = ObjectErrorBase + 3,
    FileNotWritable = ObjectErrorBase + 4,
    NameNotUsable = ObjectErrorBase + 5,
    TextNotEncodable = ObjectErrorBase + 6,
};

} // namespace ORVTListview
