#pragma once

#include "host/orv/IHint.h"

#include <memory>
#include <utility>

namespace orvui
{

/// The hint that a part makes on its stack for the length of one notification.
class Hint : public orv::IHint
{
public:
    Hint(short code, std::shared_ptr<orv::IDocument> document) : hintCode(code), hintDocument(std::move(document)) {}
    ~Hint() override = default;

    short getCode() override { return hintCode; }
    std::shared_ptr<orv::IDocument> getDocument() override { return hintDocument; }

private:
    short hintCode;
    std::shared_ptr<orv::IDocument> hintDocument;
};

} // namespace orvui
