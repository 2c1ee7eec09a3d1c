#pragma once

namespace orv
{

/// A text for support mails that an application supplies itself.
class ISupportText
{
public:
    virtual ~ISupportText() = default;

    /// Valid until the next call. Null counts as none: the mail then describes the system.
    virtual wchar_t const* text() = 0;
};

} // namespace orv
