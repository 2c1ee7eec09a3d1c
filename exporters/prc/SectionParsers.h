#pragma once

#include "exporters/prc/PrcReader.h"
#include "exporters/prc/SectionReader.h"

namespace prc
{

/// Each reads the whole content of one section into the result and throws FormatError. Indices into lists of other
/// sections are checked afterwards, by problemOf(Scene).
void readGlobals(SectionReader& in, Scene& scene, FileFacts& facts);
void readTessellation(SectionReader& in, Scene& scene, std::uint32_t authoringVersion);
/// `boxes` receives the box that each part states.
void readTree(SectionReader& in, Scene& scene, FileFacts& facts, std::vector<Box>& boxes);
void readEmpty(SectionReader& in, Entity section);
void readModelFile(SectionReader& in, Scene& scene, FileFacts const& facts);

} // namespace prc
