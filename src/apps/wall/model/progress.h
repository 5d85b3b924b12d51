#ifndef WALL_PROGRESS_H
#define WALL_PROGRESS_H

#include <functional>

namespace wall
{

/// What long work calls on its way with the part that is done, 0 to 100 percent, never less than
/// before. A false answer cancels the work. It is called in the thread that does the work.
using Progress = std::function<bool(int percent)>;

/// How many elements at most are worked on between two calls.
constexpr int progressStep = 1000;

} // namespace wall

#endif // WALL_PROGRESS_H
