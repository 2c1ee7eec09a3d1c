#pragma once

namespace orvviewer
{

/// The whole program behind main; returns its exit status.
int runProgram(int count, char** arguments);

} // namespace orvviewer
