// "Import Map" in the design dialog.
#include "controls/forms.h"
#include "core/session.h"
#include "database/FileForm.h"
#include "editing/DesignForm.h"
#include "editing/designCommand.h"
#include "store/descriptionFile.h"
#include "support/database.h"

#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

class MapImport : public Fresh {
protected:
    MapImport()
    {
        session.dbPath = writeDatabase(u"pets"_s, 0);
        QDir().mkpath(inTestFolder(u"Documents"_s));
        QImage map(30, 20, QImage::Format_RGB32);
        map.fill(Qt::green);
        EXPECT_TRUE(map.save(mapPath()));
        readDbInfo();
    }

    static QString mapPath() { return inTestFolder(u"Documents/Żabka.bmp"_s); }

    /// Presses the button in the design dialog, then acts in the file dialog. The design is cancelled.
    static void import(const std::function<void(FileForm&)>& act)
    {
        modalLoop = [act](QDialog& dialog) {
            dialog.show();
            if (auto* files = qobject_cast<FileForm*>(&dialog)) {
                EXPECT_EQ(files->windowTitle(), u"Import Map"_s);
                act(*files);
            } else {
                QTest::mouseClick(static_cast<DesignForm&>(dialog).mapBut, Qt::LeftButton);
                QCoreApplication::processEvents();
            }
            dialog.hide();
        };
        designCommand();
    }

    static void chooseTheMap(FileForm& files)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return files.iconBox[0]->isVisible(); }));
        QTest::mouseClick(files.iconBox[0], Qt::LeftButton);
        QTest::mouseClick(files.answers->ok, Qt::LeftButton);
    }
};

TEST_F(MapImport, LiesUnderTheCardsAndIsWrittenEvenAfterACancel)
{
    import(chooseTheMap);
    EXPECT_EQ(session.backgroundPicture, mapPath());
    EXPECT_EQ(session.backgroundImage.size(), QSize(30, 20));
    session.backgroundPicture = u"none"_s;
    session.backgroundImage = {};
    readDbInfo();
    EXPECT_EQ(session.backgroundImage.size(), QSize(30, 20)) << "as another workstation reads it";

    QFile::remove(mapPath());
    session.backgroundPicture = u"none"_s;
    readDbInfo();
    readDbInfo();
    EXPECT_EQ(recorded.messages.size(), 1) << "a map that is gone is reported once";
}

TEST_F(MapImport, NothingChangesUnlessAPictureIsOpened)
{
    const auto cancel = [](FileForm& files) { QTest::mouseClick(files.answers->cancel, Qt::LeftButton); };
    const auto browse = [](FileForm& files) {
        recorded.chosen.push_back(inTestFolder(u"Documents"_s));
        QTest::mouseClick(files.StdDiBoxBut, Qt::LeftButton);
    };
    const auto damaged = [](FileForm& files) {
        putFile(mapPath(), "BM");
        chooseTheMap(files);
    };
    for (const auto& act : std::initializer_list<std::function<void(FileForm&)>>{cancel, browse, damaged}) {
        import(act);
        EXPECT_EQ(session.backgroundPicture, u"none"_s);
        EXPECT_TRUE(session.backgroundImage.isNull());
    }
    EXPECT_EQ(recorded.messages.join(u' '), u"Import Map|Sorry. This file can't be opened."_s);
}

} // namespace
