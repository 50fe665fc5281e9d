#include "options/hiddenParts.h"

#include "controls/dialogParts.h"
#include "core/title.h"
#include "options/teacherOptions.h"
#include "platform/desktop.h"
#include "platform/errors.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

void importList()
{
    try {
        desktop.programs.start(desktop.files.programFolder() + u"/Plugins/Csvtool.exe"_s, {});
    } catch (const RuntimeError&) {
        desktop.boxes.showMessage(
            MessageIcon::information, u"Information"_s,
            u"Tallymoor CSV Import Utility is not available on this release. It will be soon."_s);
    }
}

} // namespace

HiddenParts::HiddenParts()
    : ChkStartup(named(new QCheckBox, "ChkStartup"))
    , ChkTips(named(new QCheckBox, "ChkTips"))
    , txtSaveDir(named(new QLineEdit, "txtSaveDir"))
    , cmdSaveDir(named(new QPushButton(u"Set Path..."_s), "cmdSaveDir"))
    , BtnChkUpdate(named(new QPushButton(releaseWithComment()), "BtnChkUpdate"))
    , BtnImport(named(new QPushButton(u"Import..."_s), "BtnImport"))
    , BtnHlp(named(new QPushButton(u"Help"_s), "BtnHlp"))
    , Frame1(named(new QWidget, "Frame1"))
{
    const std::pair<QString, std::vector<QWidget*>> frames[] = {
        {u"Save Directory"_s, {txtSaveDir, cmdSaveDir}},
        {u"Startup Dialog"_s, {ChkStartup}},
        {u"Daily Tips"_s, {ChkTips}},
        {u"Check for Updates"_s, {BtnChkUpdate}},
        {u"CSV Files"_s, {BtnImport, Frame1}},
    };
    auto* column = new QVBoxLayout(this);
    for (const auto& [caption, parts] : frames) {
        auto* frame = new QGroupBox(caption);
        auto* row = new QHBoxLayout(frame);
        for (QWidget* part : parts)
            row->addWidget(part);
        column->addWidget(frame);
    }
    column->addWidget(BtnHlp);
    onClickLater(cmdSaveDir, [this] { chooseSavingFolder(); });
    onClickLater(BtnImport, importList);
    hide();
}

void HiddenParts::chooseSavingFolder()
{
    const QString folder = desktop.files.chooseFolder(
        u"Set Saving Directory\nBrowse to Set Saving Directory"_s, txtSaveDir->text());
    if (!folder.isEmpty())
        txtSaveDir->setText(folder);
}
