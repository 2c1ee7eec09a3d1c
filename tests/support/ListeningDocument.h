#pragma once

#include "host/orv/IDocument.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace orvtest
{

/// Another document's records, and the keys for which they were asked, in order.
class ListeningDocument final : public orv::IDocument
{
public:
    explicit ListeningDocument(std::shared_ptr<orv::IDocument> records) : source(std::move(records)) {}
    std::shared_ptr<orvsg::Schema> getSchema(short const& key) override
    {
        keys.push_back(key);
        if (onAsked) {
            onAsked(key);
        }
        return source->getSchema(key);
    }

    std::vector<short> keys;
    std::function<void(short)> onAsked; ///< called before a record is handed out

private:
    std::shared_ptr<orv::IDocument> source;
};

} // namespace orvtest
