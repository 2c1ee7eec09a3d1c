// A property page that is a widget of the program.
#include "platform/qt/Native.h"

#include <QWidget>

#include <memory>
#include <utility>

namespace orvplatform
{
namespace
{
class WidgetPage final : public CPropertyPage
{
public:
    WidgetPage(QWidget* content, QString name, std::function<void()> apply)
        : CPropertyPage(0), widget(content), title(std::move(name)), onApply(std::move(apply))
    {
    }
    ~WidgetPage() override
    {
        if (!m_hWnd)
            delete widget;
    }
    CString GetCaption() const override { return title.toStdWString(); }
    BOOL OnApply() override
    {
        if (onApply)
            onApply();
        return TRUE;
    }

protected:
    BOOL CreatePage(CWnd*) override { return SubclassWindow(handleOf(widget)); }
    void PostNcDestroy() override { widget = nullptr; }

private:
    QWidget* widget; // the page's until its window stands, then the sheet's
    QString title;
    std::function<void()> onApply;
};
} // namespace

void addWidgetPage(CMFCPropertySheet& sheet, QWidget* page, const QString& title, std::function<void()> onApply)
{
    sheet.AddOwnPage(std::make_shared<WidgetPage>(page, title, std::move(onApply)));
}
} // namespace orvplatform
