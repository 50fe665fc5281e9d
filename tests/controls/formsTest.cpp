#include "controls/forms.h"

#include "support/freshStart.h"

using namespace Qt::StringLiterals;

namespace {

struct Counted : QWidget {
    void load() { ++loads; }
    static inline int loads = 0;
};

} // namespace

using Forms = Fresh;

TEST_F(Forms, LoadOnceStayWhenHiddenAndAreNewAfterUnloading)
{
    Counted::loads = 0;
    form<Counted>().show();
    form<Counted>().hide();
    form<Counted>().setWindowTitle(u"kept"_s);
    EXPECT_EQ(form<Counted>().windowTitle(), u"kept"_s);
    EXPECT_EQ(Counted::loads, 1);

    unload<Counted>();
    EXPECT_FALSE(isLoaded<Counted>());
    EXPECT_TRUE(form<Counted>().windowTitle().isEmpty());
    EXPECT_EQ(Counted::loads, 2);
    unloadAllForms();
    EXPECT_FALSE(isLoaded<Counted>());
}
