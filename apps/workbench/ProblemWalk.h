#pragma once

namespace ORVTListview {

class ProjectView;

// Puts the caret to the next problem, or for -1 the one before it, first in the program that is
// used, then in the others, round at the ends. Nothing without a problem.
void goToProblem(ProjectView &views, int step);

} // namespace ORVTListview
