// A library whose first function throws, by a class of its own: its code has to be there until the exception is gone.

#include <exception>
#include <string>

namespace
{

class OwnRefusal final : public std::exception
{
public:
    explicit OwnRefusal(std::string why) : text(std::move(why)) {}
    char const* what() const noexcept override { return text.c_str(); }

private:
    std::string text;
};

} // namespace

extern "C" int createPlugin(void**)
{
    throw OwnRefusal("refused on purpose, for a reason that is kept on the heap");
}

extern "C" int destroyPlugin(void**)
{
    return 0;
}
