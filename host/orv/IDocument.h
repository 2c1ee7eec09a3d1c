#pragma once

#include "host/orvsg/Schema.h"

#include <memory>

namespace orv
{

/// The open model.
class IDocument
{
public:
    virtual ~IDocument() = default;

    /// The record of a key; empty where the document has none. Callers downcast it to the record's own class.
    virtual std::shared_ptr<orvsg::Schema> getSchema(short const& key) = 0;
};

/// The record of type Record, or empty where there is no document, no such record or a record of another class.
template <class Record>
std::shared_ptr<Record> recordOf(std::shared_ptr<IDocument> const& document, short const& key)
{
    return document ? std::dynamic_pointer_cast<Record>(document->getSchema(key)) : nullptr;
}
template <class Record>
std::shared_ptr<Record> recordOf(std::shared_ptr<IDocument> const& document)
{
    return recordOf<Record>(document, Record::key);
}

} // namespace orv
