#include "core/title.h"

#include "core/mainView.h"
#include "core/session.h"

using namespace Qt::StringLiterals;

QString releaseName()
{
    return u"Release %1.%2.%3"_s.arg(TALLYMOOR_MAJOR).arg(TALLYMOOR_MINOR).arg(TALLYMOOR_REVISION);
}

QString titleEnding()
{
    return u" Release %1.%2 (Build %3)"_s.arg(TALLYMOOR_MAJOR).arg(TALLYMOOR_MINOR).arg(TALLYMOOR_REVISION);
}

QString releaseWithComment()
{
    return titleEnding().trimmed() + u'\n' + QLatin1StringView(TALLYMOOR_COMMENT);
}

QString titleWithoutDatabase() { return u"[No Database] - Tallymoor"_s + titleEnding(); }

void updateTitle()
{
    setTitle(u"["_s + session.dbPath + u" - "_s + QString::number(session.numCards) +
             u" Card(s)] - Tallymoor"_s + titleEnding());
}

void setTitle(const QString& text)
{
    session.window.title = text;
    mainView.showTitle();
}
