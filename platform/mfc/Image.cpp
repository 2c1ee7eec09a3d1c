#include "atlimage.h"

#include "platform/qt/Gdi.h"

#include <QFile>

namespace
{
HRESULT attachEncoded(CImage& image, const QByteArray& bytes)
{
    HBITMAP made = orvplatform::makeBitmap(bytes);
    if (!made)
        return E_FAIL;
    image.Attach(made);
    return S_OK;
}
} // namespace

HRESULT CImage::Load(IStream* stream)
{
    if (!stream)
        return E_INVALIDARG;
    QByteArray bytes;
    char part[65536];
    ULONG count = 0;
    do {
        if (FAILED(stream->Read(part, sizeof part, &count)))
            return E_FAIL;
        bytes.append(part, static_cast<qsizetype>(count));
    } while (count == sizeof part);
    bytes.squeeze(); // they are kept until the picture goes
    return attachEncoded(*this, bytes);
}

HRESULT CImage::Load(LPCWSTR path)
{
    QFile file(QString::fromWCharArray(path ? path : L""));
    return file.open(QIODevice::ReadOnly) ? attachEncoded(*this, file.readAll()) : E_FAIL;
}

int CImage::GetWidth() const
{
    return orvplatform::sizeOf(bitmap).width();
}
int CImage::GetHeight() const
{
    return orvplatform::sizeOf(bitmap).height();
}

void CImage::Attach(HBITMAP other)
{
    Destroy();
    bitmap = other;
}

HBITMAP CImage::Detach()
{
    return std::exchange(bitmap, nullptr);
}
void CImage::Destroy()
{
    DeleteObject(Detach());
}
