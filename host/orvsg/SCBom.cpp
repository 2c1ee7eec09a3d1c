#include "host/orvsg/SCBom.h"

namespace orvsg
{

short const SCBom::BOM = 21;

} // namespace orvsg
