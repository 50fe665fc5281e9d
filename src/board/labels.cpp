#include "board/labels.h"

#include "core/mainView.h"
#include "core/session.h"

using namespace Qt::StringLiterals;

void clearBoardLabels()
{
    for (BoardLabel& label : session.board.groupTitle) {
        label.visible = false;
        label.text = u"Group Label"_s;
    }
    session.board.searchTitle.visible = false;
    session.board.otherTitle.visible = false;
    for (BoardShape* shape :
         {&session.board.VennBox, &session.board.VennLeftCircle, &session.board.VennRightCircle})
        shape->visible = false;
    session.board.colour = session.options.BCol;
    mainView.redrawBoard();
}
