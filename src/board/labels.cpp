#include "board/labels.h"

#include "core/screen.h"
#include "core/session.h"

void clearBoardLabels()
{
    for (BoardLabel& label : session.GroupLabel) {
        label.visible = false;
        label.text = QStringLiteral("Group Label");
    }
    session.searchTitle.visible = false;
    session.otherTitle.visible = false;
    for (BoardShape* shape : {&session.VennBox, &session.VennLeftCircle, &session.VennRightCircle})
        shape->visible = false;
    session.boardColour = session.BCol;
    screen.redrawBoard();
}
