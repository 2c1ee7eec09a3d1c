#pragma once
// The files of the viewer's translations, as the tests read them.

#include <gtest/gtest.h>

#include <QFile>
#include <QString>
#include <QXmlStreamReader>

#include <map>
#include <string>
#include <vector>

namespace orvtest
{

inline std::vector<std::string> const translated{"fr", "de", "ja", "ko", "zh", "es", "pt"};

/// Each text of the sources and what the language's file has for it.
inline std::map<QString, QString> translationsOf(std::string const& code)
{
    QFile file(QString::fromStdString(std::string(ORV_SOURCE_DIR) + "/viewer/translations/orvanta_" + code + ".ts"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    std::map<QString, QString> texts;
    QXmlStreamReader xml(&file);
    QString source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"source") {
            source = xml.readElementText();
        } else if (xml.isStartElement() && xml.name() == u"translation") {
            EXPECT_FALSE(xml.attributes().hasAttribute("type")) << "unfinished: " << source.toStdString();
            texts[source] = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return texts;
}

} // namespace orvtest
