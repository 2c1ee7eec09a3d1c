#include "atlimage.h"

#include "platform/qt/Gdi.h"

#include <QFile>

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
    QImage image = orvplatform::decodePicture(bytes);
    if (image.isNull())
        return E_FAIL;
    Attach(orvplatform::makeBitmap(std::move(image)));
    return S_OK;
}

HRESULT CImage::Load(LPCWSTR path)
{
    QFile file(QString::fromWCharArray(path ? path : L""));
    QImage image = file.open(QIODevice::ReadOnly) ? orvplatform::decodePicture(file.readAll()) : QImage();
    if (image.isNull())
        return E_FAIL;
    Attach(orvplatform::makeBitmap(std::move(image)));
    return S_OK;
}

int CImage::GetWidth() const
{
    return orvplatform::imageOf(bitmap).width();
}
int CImage::GetHeight() const
{
    return orvplatform::imageOf(bitmap).height();
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
