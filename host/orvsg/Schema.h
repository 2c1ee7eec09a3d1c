#pragma once

namespace orvsg
{

/// Base of every scene record that a document hands out by its key. Callers downcast it at run time.
class Schema
{
public:
    virtual ~Schema() = default;
};

} // namespace orvsg
