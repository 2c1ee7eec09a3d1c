#include "afxfiledialog.h"

#include "platform/qt/Native.h"
#include "platform/testing/ModalExpectation.h"
#include "platform/text/Text.h"

#include <QFileDialog>

#include <algorithm>
#include <filesystem>

IMPLEMENT_DYNAMIC(CFileDialog, CDialog)

CFileDialog::CFileDialog(BOOL open, LPCWSTR extension, LPCWSTR fileName, DWORD flags, LPCWSTR filters, CWnd* parent,
                         DWORD, BOOL)
    : m_bOpenFileDialog(open), defaultExtension(extension ? extension : L""), filter(filters ? filters : L""),
      file(MAX_PATH, L'\0')
{
    m_pParentWnd = parent;
    std::replace(filter.begin(), filter.end(), L'|', L'\0');
    const std::wstring name = std::wstring(fileName ? fileName : L"").substr(0, MAX_PATH - 1);
    std::copy(name.begin(), name.end(), file.begin());
    m_ofn.hwndOwner = parent ? parent->m_hWnd : nullptr;
    m_ofn.lpstrFilter = filter.c_str();
    m_ofn.lpstrFile = file.data();
    m_ofn.nMaxFile = static_cast<DWORD>(file.size());
    m_ofn.Flags = flags;
    m_ofn.lpstrDefExt = defaultExtension.empty() ? nullptr : defaultExtension.c_str();
}

namespace
{
// The filters as "description (patterns)". A description that names its patterns itself is not given them twice.
QStringList nameFilters(const std::wstring& pairs)
{
    QStringList parts = QString::fromStdWString(pairs).split(QChar(u'\0'), Qt::SkipEmptyParts);
    QStringList result;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString description = parts[i];
        if (const qsizetype bracket = description.lastIndexOf(u'('); bracket > 0)
            description.truncate(bracket);
        result << QStringLiteral("%1 (%2)").arg(description.trimmed(), parts[i + 1].replace(u';', u' '));
    }
    return result;
}

// A name that may have come from anywhere as one that can be proposed: names choose no folder, and what can't be seen
// in the dialog isn't in them. May be empty.
QString proposable(LPCWSTR name)
{
    std::u32string characters = QString::fromWCharArray(name ? name : L"").section(u'/', -1).toStdU32String();
    std::replace_if(
        characters.begin(), characters.end(),
        [](char32_t c) {
            const QChar::Category kind = QChar::category(c);
            // Among the marks of format are those that turn the order of the letters about.
            return kind == QChar::Other_Control || kind == QChar::Other_Format || kind == QChar::Separator_Line ||
                   kind == QChar::Separator_Paragraph;
        },
        U'_');
    const QString text = QString::fromStdU32String(characters);
    return text == u"." || text == u".." ? QString() : text;
}

// Not by way of wide text, which the library converts by the "C" locale: names in UTF-8 would not survive it.
std::filesystem::path nativePath(const CString& path)
{
    return orvtext::toUtf8(path.GetString());
}
} // namespace

INT_PTR CFileDialog::DoModal()
{
    using orvplatform::testing::ModalScript;
    if (ModalScript::isRunning())
        return ModalScript::play(*this);
    CWnd* parent = m_pParentWnd ? m_pParentWnd : CWnd::FromHandle(GetActiveWindow());
    QFileDialog dialog(parent ? orvplatform::widgetOf(parent->m_hWnd) : nullptr);
    dialog.setAcceptMode(m_bOpenFileDialog ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(m_bOpenFileDialog ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !(m_ofn.Flags & OFN_OVERWRITEPROMPT));
    if (m_ofn.lpstrTitle)
        dialog.setWindowTitle(QString::fromWCharArray(m_ofn.lpstrTitle));
    if (m_ofn.lpstrInitialDir)
        dialog.setDirectory(QString::fromWCharArray(m_ofn.lpstrInitialDir));
    const QStringList filters = nameFilters(filter);
    if (!filters.isEmpty())
        dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(proposable(m_ofn.lpstrDefExt).section(u'.', -1).trimmed());
    if (const QString name = proposable(m_ofn.lpstrFile); !name.isEmpty())
        dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return IDCANCEL;
    TakePath(dialog.selectedFiles().first().toStdWString());
    return IDOK;
}

void CFileDialog::TakePath(const std::wstring& path)
{
    if (!m_ofn.lpstrFile || m_ofn.nMaxFile == 0)
        return;
    if (m_ofn.lpstrFile == file.data() && path.size() >= file.size()) {
        // A path may be longer than MAX_PATH here, and a cut one is another file.
        file.resize(path.size() + 1);
        m_ofn.lpstrFile = file.data();
        m_ofn.nMaxFile = static_cast<DWORD>(file.size());
    }
    const std::size_t count = std::min<std::size_t>(path.size(), m_ofn.nMaxFile - 1);
    std::copy_n(path.begin(), count, m_ofn.lpstrFile);
    m_ofn.lpstrFile[count] = L'\0';
}

CString CFileDialog::GetPathName() const
{
    return m_ofn.lpstrFile ? m_ofn.lpstrFile : L"";
}

CString CFileDialog::GetFileName() const
{
    return orvtext::fromUtf8(nativePath(GetPathName()).filename().string());
}

CString CFileDialog::GetFileTitle() const
{
    return orvtext::fromUtf8(nativePath(GetPathName()).stem().string());
}

CString CFileDialog::GetFileExt() const
{
    const std::wstring extension = orvtext::fromUtf8(nativePath(GetPathName()).extension().string());
    return extension.empty() ? extension : extension.substr(1);
}
