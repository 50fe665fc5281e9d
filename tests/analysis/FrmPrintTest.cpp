#include "analysis/FrmPrint.h"

#include "analysis/printCommand.h"
#include "controls/dropDown.h"
#include "core/session.h"
#include "store/options.h"
#include "support/cards.h"
#include "support/freshStart.h"

#include <QRadioButton>

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
};

TEST_F(PrintDialog, OffersTheStoredPrinterElseTheComputersOwn)
{
    const std::pair<const char*, const char*> cases[] = {
        {"0", "Hall"}, {"-1", "Office"}, {"2", "Office"}, {"99999", "Office"}, {"1", "Office"}};
    for (const auto& [stored, offered] : cases) {
        write(option::printer, QLatin1String(stored));
        recorded.dialogSteps.push_back([&](QDialog& shown) {
            auto& dialog = static_cast<FrmPrint&>(shown);
            EXPECT_EQ(dialog.Printercombo->currentText(), QLatin1String(offered)) << stored;
            EXPECT_EQ(dialog.Printercombo->itemText(2), u"Save as PDF"_s);
            EXPECT_FALSE(dialog.Option3->isEnabled() || dialog.Option4->isEnabled());
            dialog.answers->cancel->click();
        });
        printCommand();
    }
    EXPECT_TRUE(recorded.messages.isEmpty() && recorded.printed.isEmpty());
}

} // namespace
