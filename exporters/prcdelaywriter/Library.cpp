// The two functions by which the viewer takes the exporter out of this library and gives it back.

#include "exporters/prcdelaywriter/PrcDelayWriter.h"

#include <new>

extern "C" {

int create(void** exporter)
{
    orvexp::IDelayExporter* const made = new (std::nothrow) prcdelay::PrcDelayWriter;
    *exporter = made;
    return 0;
}

int destroy(void** exporter)
{
    delete static_cast<orvexp::IDelayExporter*>(*exporter);
    *exporter = nullptr;
    return 0;
}
}
