// Everything about the open database and the running session, shared by every window and routine.
//
// Routines read and change these members, then ask `mainView` to redraw; no database object is passed around.
// Used by one thread only, so there are no locks. Element 0 of the card and field tables is not a card or
// field.
#pragma once

#include "platform/chart.h"
#include "platform/errors.h"
#include "platform/table.h"

#include <QHash>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <array>
#include <vector>

inline constexpr int lastCard = 100;    // end of the card tables; a database holds at most session.maxCards
inline constexpr int lastField = 12;    // end of the field tables
inline constexpr int lastAnswer = 12;   // end of a field's list of answers
inline constexpr int stripSize = 2;     // session.cardSize of cards that are strips without a picture
inline constexpr int menuGreyLine = 38; // Y of the menu band's lower edge: the top of the board, in pixels

enum class CardCursor { handOpen, handClosed, cardSound };

/// A card on the board. Position and size are in board pixels and may be fractions.
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

/// A caption on the board.
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

/// The state of a control of the main window. The widgets follow it, never the other way round.
struct ControlState {
    bool visible = true;
    bool enabled = true;
    bool pressed = false;
};

/// A hidden picture control; `image` starts at its top left corner.
struct WorkPicture {
    int width = 0;
    int height = 0;
    QImage image; // null when the control is empty
    bool visible = true;

    /// What the control shows: the image, unscaled, from the top left corner, clipped to the control, on
    /// white.
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

/// The cells of the table: rows and columns of text, with a card's face in column 1. Row 0 is the header.
struct TableGrid {
    int width = 0; // pixels
    int height = 0;
    int headerHeight = 0;
    int cols = 0;
    int rows = 0;
    std::vector<int> columnWidths;          // pixels, one for each column
    std::vector<std::vector<QString>> text; // [row][column]
    std::vector<QImage> face;               // [row]
    std::vector<QString> cardId;            // [row], of the card that the row shows; empty for none
};

struct TableScroll {
    int max = 0;
    int value = 0; // row r shows card r + value
    int largeChange = 1;
};

/// One condition of the find dialog: field `fieldTag` (a number as text) compared by `word` with `value`.
struct FindRow {
    QString fieldTag = QStringLiteral("1");
    QString field; // the name shown in the dialog; empty until the pupil picks one
    QString word;
    QString value;
};

/// What a file held when it was last read or written.
struct FileState {
    int error = fileNotFound; // 0 when it could be read
    QByteArray bytes;

    bool operator==(const FileState&) const = default;
};

using CardFields = Table<QString, lastField>;
using FieldAnswers = Table<QString, lastAnswer>;

/// The speed of a run of cards, and whether it was stopped (tools/pacing.h).
struct RunState {
    double animationSpeed = 1; // board pixels moved in two steps
    double savedSpeed = 0;
    bool stopped = false;
    bool paused = false;
    int speedPosition = 5; // position of the speed window's slider, 1..9
    Table<bool, lastCard> cardPlaced;
};

/// The values of a field and how often each stands on a card: rows 1..numTallies.
struct GroupTable {
    int numGroups = 0; // value columns of the group tool, 0..11
    Table<QString, 40> groupLabel;
    Table<float, 40> groupTally;
    int numTallies = 0;
};

/// The answers of the graph wizard, and the chart drawn from them.
struct GraphState {
    int graphKind = 0; // 0 bars, 1 solid bars, 2 line, 3 pie, 4 scattergram, 5 scattergram with line
    Table<int, 2> graphAxisField; // of a scattergram: 1 X, 2 Y
    bool showAllData = false;     // one value for each card, instead of counting the cards in groups
    QString graphTitle;
    QString graphXTitle;
    QString graphYTitle;
    double graphMaxValue = 0;
    qint16 graphOnScreen = 0; // 1 while the last command was "Make Graph..."
    Chart chart;              // as drawn last: its axis titles, legend and scales outlive a graph
};

/// The teachers' options in use: hidden boxes of the main window, filled from the settings.
struct OptionBoxes {
    bool caseSensitive = false;
    QString keysValue; // the capital that opens the teachers' options with Ctrl and Shift
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
    QHash<QString, QString> unwritten; // settings that could not be written, until the program ends
    qint16 soundStatus = 0;            // 1: the card editor has its sound page
    QString roOptionStatus = QStringLiteral("RW");   // "RW": a database may be marked read-only
    QString upLevelStatus = QStringLiteral("False"); // "True": the file dialog stays in its folder
    QString boardKeys = QStringLiteral("0");         // "1": keys reach the cards on the board
    QString WSPath;
    QString TWS = QStringLiteral("0");
    QString TipBox = QStringLiteral("1");
};

/// Working controls of the card editor. All records and faces pass through them, even while no editor is
/// open.
struct EditorState {
    Table<QString, lastField> DataBox;
    Table<QString, lastField> fieldName; // captions of the editor's labels
    WorkPicture Picture1{159, 120, {}, true};
    WorkPicture shrinkdummy{82, 62, {}, true}; // its size is kept after the editor closes
    QImage openedPicture;                      // what Picture1 showed when the card was opened
    QString cardSoundFound;                    // the sound file of the card in the editor; empty without one
    QByteArray recording;                      // the last one, a wave file; empty before the first
};

struct DesignState {
    bool ChkRD = false;               // the read-only tick of the design dialog
    bool fieldTableForgotten = false; // the field table was reset while dbPath's database is still open
};

struct TableState {
    TableGrid Grid;
    TableScroll gridScroll;
    ControlState panel{false, true, false};
    ControlState editBox{false, true, false};
    QString editBoxText; // the value in a cell being written
    int gridEditRow = 0; // the cell being written
    int gridEditCol = 0;
};

/// What lies on the board besides the cards.
struct BoardState {
    double width = 0; // of the main window's inner area, pixels
    double height = 0;
    double dragOffsetX = 0; // twips from the corner of the dragged object
    double dragOffsetY = 0;
    BoardShape SelectBox;
    Bin BigBin{{850, 360, 128, 150, false}, false};
    BoardShape VennBox{8, 48, 0, 0, false};
    BoardShape VennLeftCircle{132, 0, 0, 0, false};
    BoardShape VennRightCircle;
    BoardLabel searchTitle;
    BoardLabel otherTitle;
    Table<BoardLabel, 12> groupTitle;              // over the columns of the group tool
    QString colour = QStringLiteral("&H8000000F"); // the background, in the settings' notation for colours
    QString borderColour = QStringLiteral("0");    // of SelectBox
};

struct MenuState {
    int openMenuIndex = -1; // 0 File, 1 Card, 2 Data, 3 Help; -1 while none is open
    Table<Table<QString, 8>, 4> menuItemCaption;
    Table<Table<QString, 8>, 4> menuItemState;
    Table<int, 3> menuLastItem;
    Table<ControlState, 3> MenuTop;     // the headings
    Table<ControlState, 5> menuCaption; // the lines of the open menu
    ControlState MenuHolder{false, true, false};
    ControlState pullDownBut{false, true, false};
    ControlState AnswerHolder{false, true, false};
};

/// States of the main window's controls.
struct WindowState {
    QString title;
    ControlState btnCards;
    ControlState btnTable;
    ControlState refreshCheck;
    ControlState PicRef;
    ControlState cmdQuestion{false, true, false};
    ControlState cmdCopyGraph{false, true, false};
    ControlState MSChart{false, true, false};
};

struct PaperState {
    QString printChoice;   // "Screen", "Card" or "Graph"
    double printScale = 0; // the margin as a share of the page's height
    PrinterList Printercombo;
    bool saveAsPdf = false; // printouts go to a file instead of the chosen printer
};

struct Session {
    Session();

    // Fields
    int numFields = 3;
    int maxFields = 12;
    Table<QString, lastField> fieldName;
    Table<QString, lastField> fieldType; // "Abc" text, "123" number
    Table<bool, lastField> fieldUseList;
    Table<FieldAnswers, lastField> fieldListItem; // [field][1..lastAnswer]

    // Cards
    int numCards = 0;
    int maxCards = 99;
    Table<QString, lastCard> cardId;       // the record file's first eight characters
    Table<QString, lastCard> recordName;   // the whole name of that file; empty while the card is new
    Table<CardFields, lastCard> cardValue; // [card][field]; field 0 is the position, field 1 the label
    Table<CardImage, lastCard> box;        // the cards on the board; element 0 holds the size of all cards
    CardStack cardStack;
    qint16 selectedCard = 0;
    qint16 cardSize = 0; // 0 small, 1 large, 2 strip without picture
    double cardWidth = 80;
    double cardHeight = 60;

    // Database
    QString dbPath;                       // folder, no separator at its end unless it is a root
    QString dbVersion;                    // "1.0.0" or "1.1.0"
    bool descriptionWhole = true;         // nothing in the description failed to be read
    QHash<QString, FileState> fileStates; // by path
    QHash<QString, FileState> toldStates; // by path: the files that a box has told of, as they were then
    bool inRefresh = false;               // a tick of the refresh is reading the folder
    QString databaseStatus = QStringLiteral("RW");
    QString backgroundPicture = QStringLiteral("none");
    QImage backgroundImage; // the loaded background, null when there is none

    // Answers of the dialogs
    QString dialogResult;  // of the last one: "OK", "Cancel" or a word of its own
    int chosenField = 0;   // in the sort, group, statistics, graph and map dialogs
    QString sortDirection; // "ABC" or "CBA"
    Table<FindRow, 2> findRow;
    Table<QString, 1> andOr; // " ", "and" or "or" between the rows
    bool vennTick = false;
    qint16 foundCount = 0; // number of cards that the last find found

    double twipsPerPixelX = 15;
    qint16 twipsPerPixelY = 15;

    RunState run;
    GroupTable groupTable;
    GraphState graph;
    OptionBoxes options;
    EditorState editor;
    DesignState design;
    TableState table;
    BoardState board;
    MenuState menu;
    WindowState window;
    PaperState paper;
};

extern Session session;

/// Clears every card's values, identity and face, hides the cards and sets their size to the present card
/// size. The number of cards doesn't change.
void resetCardTable();

/// Sets fields 1..12 to their initial names and type "Abc", without a list. The number of fields doesn't
/// change.
void resetFieldTable();

/// The card with that identity; 0 when none has it, as after another workstation has deleted it.
int cardWithId(const QString& cardId);

/// Clears fields 1..12 of the card; its position is kept.
void clearCardValues(int card);
