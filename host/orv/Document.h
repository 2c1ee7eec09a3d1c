#pragma once

#include "host/orv/IDocument.h"

#include <map>
#include <utility>

namespace orv
{

/// A document that keeps its records by key. The viewer fills one for each model it opens.
class Document final : public IDocument
{
public:
    std::shared_ptr<orvsg::Schema> getSchema(short const& key) override
    {
        auto const found = records.find(key);
        return found == records.end() ? nullptr : found->second;
    }

    /// An empty record removes the key.
    void setSchema(short key, std::shared_ptr<orvsg::Schema> record)
    {
        if (record) {
            records[key] = std::move(record);
        } else {
            records.erase(key);
        }
    }

private:
    std::map<short, std::shared_ptr<orvsg::Schema>> records;
};

} // namespace orv
