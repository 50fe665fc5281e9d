#include "analysis/FrmPrint.h"

#include "analysis/printCommand.h"
#include "controls/dropDown.h"
#include "core/session.h"
#include "store/options.h"
#include "support/cards.h"
#include "support/files.h"

#include <QRadioButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class PrintDialog : public Fresh {
protected:
    PrintDialog()
    {
        session.paper.printScale = 0.08;
        desktop.paper.printerNames = [] { return QStringList{u"Hall"_s, u"Office"_s}; };
        desktop.paper.defaultPrinterName = [] { return u"Office"_s; };
        cards({u"cat"_s});
        session.cardSize = stripSize;
        session.selectedCard = 1;
    }

    static void print(const std::function<void(FrmPrint&)>& act)
    {
        recorded.dialogSteps.push_back([act](QDialog& dialog) { act(static_cast<FrmPrint&>(dialog)); });
        printCommand();
    }

    static void click(QAbstractButton* button)
    {
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(20, button->height() / 2));
    }
};

TEST_F(PrintDialog, OffersTheStoredPrinterElseTheComputersOwn)
{
    const std::pair<const char*, const char*> cases[] = {
        {"0", "Hall"}, {"-1", "Office"}, {"2", "Office"}, {"99999", "Office"}, {"1", "Office"}};
    for (const auto& [stored, offered] : cases) {
        write(option::printer, QLatin1String(stored));
        print([&](FrmPrint& dialog) {
            EXPECT_EQ(dialog.Printercombo->currentText(), QLatin1String(offered)) << stored;
            EXPECT_EQ(dialog.Printercombo->itemText(2), u"Save as PDF"_s);
            click(dialog.answers->cancel);
        });
    }
    EXPECT_TRUE(recorded.messages.isEmpty() && recorded.printed.isEmpty());
}

TEST_F(PrintDialog, PrintsWhatIsChosenWhereItIsChosen)
{
    print([](FrmPrint& dialog) {
        EXPECT_TRUE(dialog.Option1->isChecked());
        EXPECT_FALSE(dialog.Option3->isEnabled() || dialog.lblgraph->isEnabled());
        EXPECT_FALSE(dialog.Option4->isEnabled());
        click(dialog.Option2);
        dialog.Printercombo->setCurrentIndex(0);
        click(dialog.answers->ok);
    });
    EXPECT_EQ(recorded.printed.join(u' '), u"Hall|Card"_s);
    EXPECT_EQ(read(option::printer), u"0"_s);

    recorded.chosen = {QString(), inTestFolder(u"board.pdf"_s)}; // the first time it is cancelled
    for (int time = 0; time < 2; ++time) {
        print([](FrmPrint& dialog) {
            dialog.Printercombo->setCurrentIndex(2);
            click(dialog.answers->ok);
        });
    }
    EXPECT_EQ(recorded.printed.size(), 1);
    EXPECT_TRUE(bytesOf(inTestFolder(u"board.pdf"_s)).startsWith("%PDF"));
    EXPECT_EQ(read(option::printer), u"0"_s) << "the class's printer stays";
}

} // namespace
