// Everything about the open database and the running session, shared by every window and routine.
//
// No database object is passed about: a routine reads and changes these items, then asks the screen to
// redraw. All runs on one thread, so nothing here is guarded. Element 0 of the card and field tables is no
// card, no field.
#pragma once

#include "platform/table.h"

#include <QImage>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <array>
#include <vector>

inline constexpr int lastCard = 100;    // end of the card tables; a database holds at most session.maxCards
inline constexpr int lastField = 12;    // end of the field tables
inline constexpr int menuGreyLine = 38; // Y of the menu band's lower edge: the top of the board, in pixels

enum class CardCursor { handOpen, handClosed, cardSound };

/// A card as it lies on the board. Places and measures are in board pixels and may be fractions.
struct CardImage {
    double left = 0;
    double top = 0;
    double width = 80;
    double height = 60;
    QImage picture;
    QString tooltip;
    bool visible = false;
    CardCursor cursor = CardCursor::handOpen;
};

/// A caption on the board; it is as wide as its text.
struct BoardLabel {
    QString text;
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    bool visible = false;
};

/// A rectangle or circle drawn on the board, or the selection frame.
struct BoardShape {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    bool visible = false;
};

struct Bin : BoardShape {
    bool lidPressed = false;
};

/// What a control of the main window shows. The window's widgets follow these, never the other way round.
struct ControlState {
    bool visible = true;
    bool enabled = true;
    bool pressed = false;
};

/// A hidden picture control: `image` fills it from its top left corner.
struct WorkPicture {
    int width = 0;
    int height = 0;
    QImage image; // null when the control is empty
    bool visible = true;

    /// What the control shows: the image unscaled from the top left corner, cut at its edges, on white.
    QImage shown() const;
};

/// The printers of this computer and the one that is chosen, -1 for none.
struct PrinterList {
    QStringList names;
    int listIndex = -1;
};

/// The order in which cards lie over one another, the lowest first.
class CardStack {
public:
    CardStack();
    void bringToFront(int card);
    void sendToBack(int card);
    const std::array<int, lastCard + 1>& fromBelow() const { return order; }

private:
    std::array<int, lastCard + 1> order;
};

/// The table's grid as rows and columns of text, with a card's face in column 1. Row 0 is the header.
struct TableGrid {
    int width = 0; // pixels
    int height = 0;
    int headerHeight = 0;
    int cols = 0;
    int rows = 0;
    std::vector<int> columnWidths;          // pixels, one for each column
    std::vector<std::vector<QString>> text; // [row][column]
    std::vector<QImage> face;               // [row]
};

struct TableScroll {
    int max = 0;
    int value = 0; // row r shows card r + value
    int largeChange = 1;
};

/// One condition of the find dialog: field `fieldTag` (a number as text) compared by `word` with `value`.
struct FindRow {
    QString fieldTag = QStringLiteral("1");
    QString field; // its name as the dialog shows it; empty until the pupil picks one
    QString word;
    QString value;
};

using CardFields = Table<QString, lastField>;
using FieldAnswers = Table<QString, 12>;

struct Session {
    Session();

    // Fields
    int numFields = 3;
    int maxFields = 12;
    Table<QString, lastField> fieldName;
    Table<QString, lastField> fieldType; // "Abc" text, "123" number
    Table<bool, lastField> fieldUseList;
    Table<FieldAnswers, lastField> fieldListItem; // [field][1..12]

    // Cards
    int numCards = 0;
    int maxCards = 99;
    Table<QString, lastCard> cardId;       // the record file's first eight characters
    Table<CardFields, lastCard> cardValue; // [card][field]; field 0 is the position, field 1 the label
    Table<CardImage, lastCard> box;        // the cards on the board; 0 is a template that keeps the size
    CardStack cardStack;
    qint16 selectedCard = 0;
    qint16 foundCount = 0;
    qint16 cardSize = 0; // 0 small, 1 large, 2 strip without picture
    double cardWidth = 80;
    double cardHeight = 60;

    // Database
    QString dbPath;    // folder, no separator at its end unless it is a root
    QString dbVersion; // "1.0.0" or "1.1.0"
    QString databaseStatus = QStringLiteral("RW");
    QString backgroundPicture = QStringLiteral("none");
    QImage backgroundImage; // the loaded background, null when there is none

    // Interaction
    double dragOffsetX = 0; // twips
    double dragOffsetY = 0;
    int openMenuIndex = -1;
    Table<Table<QString, 8>, 4> menuItemCaption;
    Table<Table<QString, 8>, 4> menuItemState;
    Table<int, 3> menuLastItem;
    QString dialogResult;
    qint16 graphOnScreen = 0;
    int gridEditRow = 0;
    int gridEditCol = 0;
    int chosenField = 0;

    // Display and options
    double twipsPerPixelX = 15;
    qint16 twipsPerPixelY = 15;
    bool caseSensitive = false;
    QString keysValue;
    double animationSpeed = 1;
    QString sortDirection;
    double printScale = 0;

    // Tools
    Table<bool, lastCard> cardPlaced;
    int numGroups = 0;
    Table<QString, 40> groupLabel;
    Table<float, 40> groupTally;
    int numTallies = 0;
    double savedSpeed = 0;
    bool animationStopped = false;
    int speedPosition = 5; // of the speed window's slider, 1..9
    bool runPaused = false;
    Table<FindRow, 2> findRow;
    Table<QString, 1> andOr; // " ", "and" or "or" between the rows
    bool vennTick = false;
    int graphKind = 0;
    Table<int, 2> graphAxisField;
    double graphMaxValue = 0;

    // The board
    double boardWidth = 0; // ScaleWidth of Form1, pixels
    double boardHeight = 0;
    BoardShape SelectBox;
    Bin BigBin{{850, 360, 128, 150, false}, false};
    BoardShape VennBox{8, 48, 0, 0, false};
    BoardShape VennLeftCircle{132, 0, 0, 0, false};
    BoardShape VennRightCircle;
    BoardLabel searchTitle;
    BoardLabel otherTitle;
    Table<BoardLabel, 12> GroupLabel; // captions of the group tool's columns
    QString boardColour =
        QStringLiteral("&H8000000F");           // the window's background, as the settings spell colours
    QString borderColour = QStringLiteral("0"); // of SelectBox

    // The table
    TableGrid Grid;
    TableScroll gridScroll;
    QString editBoxText; // of editBox, the value in a cell being written

    // Controls of the main window that routines switch
    QString title;
    Table<ControlState, 3> MenuTop;
    Table<ControlState, 5> menuCaption; // the lines of the open menu
    ControlState btnCards;
    ControlState btnTable;
    ControlState refreshCheck;
    ControlState PicRef;
    ControlState cmdQuestion{false, true, false};
    ControlState cmdCopyGraph{false, true, false};
    ControlState tablePanel{false, true, false};
    ControlState MSChart{false, true, false};
    ControlState editBox{false, true, false};
    ControlState pullDownBut{false, true, false};
    ControlState AnswerHolder{false, true, false};
    ControlState MenuHolder{false, true, false};

    PrinterList Printercombo;

    // Hidden boxes of the main window: the teachers' options in the running program
    QString txtShow = QStringLiteral("True");
    QString RefreshBox = QStringLiteral("1");
    QString ColText;
    QString ColText2;
    QString BCol = QStringLiteral("&H8000000F");
    QString Dbs = QStringLiteral("RW");
    QString SensBox = QStringLiteral("False");
    QString txtClue = QStringLiteral("0");
    QString txtDBLock = QStringLiteral("0");
    QString txtDelRandomCard = QStringLiteral("1");
    QString WSPath;
    QString TWS = QStringLiteral("0");
    QString TipBox = QStringLiteral("1");

    // Working controls of the card editor: every record and every face passes through them
    Table<QString, lastField> DataBox;
    Table<QString, lastField> editorFieldName; // captions of the editor's labels
    WorkPicture Picture1{159, 120, {}, true};
    WorkPicture shrinkdummy{82, 62, {}, true}; // its size outlives the editor
    QString cardSoundFound;                    // the sound file of the card in the editor; empty without one
    bool designReadOnly = false;               // ChkRD of the design dialog
    bool fieldTableForgotten = false;          // reset although the database of dbPath may still be designed
};

extern Session session;

/// Empties every card's values, identity and face, hides the cards and gives them the present card size.
/// The number of cards stays.
void resetCardTable();

/// Gives fields 1..12 their start names and the type "Abc", without a list. The number of fields stays.
void resetFieldTable();

/// Empties fields 1..12 of the card; its position stays.
void clearCardValues(int card);
