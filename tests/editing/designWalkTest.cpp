// Random databases. A separate model, which uses none of the program's code, says what the folder must
// contain.
#include "core/mainView.h"
#include "database/loading.h"
#include "database/opening.h"
#include "editing/DesignForm.h"
#include "editing/FieldForm.h"
#include "editing/cardEntry.h"
#include "editing/designCommand.h"
#include "editing/editCard.h"
#include "store/descriptionFile.h"
#include "support/files.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegularExpression>

#include <map>
#include <random>

using namespace Qt::StringLiterals;

namespace {

std::mt19937 dice;

int roll(int sides) { return std::uniform_int_distribution(0, sides - 1)(dice); }

/// Up to ten letters without quotes.
QString anyText(const QString& letters)
{
    QString text;
    for (int length = roll(11); length > 0; --length)
        text += letters[roll(int(letters.size()))];
    return text;
}

const QString codePageLetters = u"abcXYZ 019,.;:-'()\u00e4\u00f6\u00df\u00e9\t"_s;
const QString allLetters = codePageLetters + u"\u0141\u0105\u20ac\u4e2d\ufeff"_s;

struct Field {
    QString name;
    QString type;
    bool useList = false;
    FieldAnswers answers;

    bool operator==(const Field&) const = default;

    /// The text as the field accepts it: a number field accepts digits and points.
    QString taking(QString text) const
    {
        static const QRegularExpression others(u"[^0-9.]"_s);
        return type == "123"_L1 ? text.remove(others) : text;
    }
};

Field anyField(const QString& letters)
{
    Field field{anyText(letters), roll(2) ? u"Abc"_s : u"123"_s, roll(2) == 0, {}};
    for (int item = 1; field.useList && item <= 12; ++item)
        field.answers[item] = anyText(letters);
    return field;
}

QByteArray quoted(const QString& text) { return '"' + text.toLatin1() + "\"\r\n"; }

/// The expected content of the database's folder. All texts are the same in Latin-1 and in the code page.
struct Model {
    int numFields = 3;
    int size = 0;
    bool readOnlyTick = false;
    QByteArray status = "RW";
    Table<Field, 12> fields;
    std::map<QString, QStringList> records; // values of each card at its last writing

    void forgetUnusedFields(int used)
    {
        for (int f = used + 1; f <= 12; ++f)
            fields[f] = {u"fieldname%1"_s.arg(f), u"Abc"_s, false, {}};
    }

    /// The values in the editor's boxes when the card is opened. Missing values of a record repeat its last
    /// one.
    QStringList shownBy(const QString& id) const
    {
        const auto record = records.find(id);
        QStringList values;
        for (int f = 1; f <= numFields; ++f) {
            const QString kept =
                record == records.end() ? QString() : record->second.value(f - 1, record->second.last());
            values.append(fields[f].taking(kept));
        }
        return values;
    }

    QByteArray description() const
    {
        QByteArray text =
            " " + QByteArray::number(numFields) + " \r\n " + QByteArray::number(size) + " \r\n\"none\"\r\n";
        for (int f = 1; f <= numFields; ++f) {
            text += quoted(fields[f].name) + quoted(fields[f].type) + (fields[f].useList ? "True" : "False") +
                    "\r\n";
            for (int item = 1; fields[f].useList && item <= 12; ++item)
                text += quoted(fields[f].answers[item]);
        }
        return text + status + "\r\nVER=\"1.1.0\"\r\n";
    }
};

} // namespace

class RandomDatabases : public Fresh {
protected:
    RandomDatabases()
    {
        session.dbPath = inTestFolder(u"db"_s);
        QDir().mkdir(session.dbPath);
        dice.seed(20090317);
        mainView.openCard = openCardEditor;
    }

    static QString description() { return session.dbPath + u"/db-info.tdb"_s; }

    void designSession(Model& model);
    void designStep(DesignForm& dialog, Model& model);
    void editSomeField(DesignForm& dialog, Model& model);
    void editSomeCard(Model& model);
    void expectFolder(const Model& model);
    int steps = 0;
};

TEST_F(RandomDatabases, ComeBackAsTheyWereWritten)
{
    for (int round = 0; round < 300; ++round) {
        const QString& letters = round % 2 ? allLetters : codePageLetters;
        Table<Field, 12> written;
        const int numFields = 1 + roll(12);
        const int size = roll(3);
        const QString status = roll(2) ? u"RW"_s : u"RO"_s;
        session.numFields = numFields;
        session.cardSize = qint16(size);
        session.databaseStatus = status;
        for (int f = 1; f <= numFields; ++f) {
            written[f] = anyField(letters);
            session.fieldName[f] = written[f].name;
            session.fieldType[f] = written[f].type;
            session.fieldUseList[f] = written[f].useList;
            session.fieldListItem[f] = written[f].answers;
        }
        writeDbInfo();
        const QByteArray bytes = bytesOf(description());

        const QString folder = session.dbPath;
        session = {};
        session.dbPath = folder;
        readDbInfo();
        EXPECT_EQ(session.numFields, numFields) << round;
        EXPECT_EQ(session.cardSize, size) << round;
        EXPECT_EQ(session.databaseStatus, status) << round;
        for (int f = 1; f <= numFields; ++f) {
            const Field read{session.fieldName[f], session.fieldType[f], session.fieldUseList[f],
                             session.fieldListItem[f]};
            ASSERT_TRUE(read == written[f]) << "field " << f << " of round " << round;
        }
        writeDbInfo();
        EXPECT_EQ(bytesOf(description()), bytes) << round;
    }
    EXPECT_TRUE(recorded.messages.isEmpty());
}

TEST_F(RandomDatabases, OfTheOldVersionAreUpgradedByTheFirstDesign)
{
    for (int round = 0; round < 30; ++round) {
        Model model;
        model.numFields = 1 + roll(12);
        QByteArray old = " " + QByteArray::number(model.numFields) + " \r\n 0 \r\n\"none\"\r\n";
        for (int f = 1; f <= model.numFields; ++f) {
            model.fields[f] = anyField(codePageLetters);
            old += quoted(model.fields[f].name) + quoted(model.fields[f].type) +
                   (model.fields[f].useList ? "True\r\n" : "False\r\n");
            for (int item = 1; model.fields[f].useList && item <= 12; ++item) {
                if (item <= 6)
                    old += quoted(model.fields[f].answers[item]);
                else
                    model.fields[f].answers[item].clear();
                session.fieldListItem[f][item] = u"of the database before"_s;
            }
        }
        putFile(description(), old + "RW\r\n");
        openChosenFolder(session.dbPath);
        EXPECT_EQ(session.dbVersion, u"1.0.0"_s);
        recorded.dialogSteps.push_back([](QDialog& dialog) { dialog.reject(); });
        designCommand();
        EXPECT_EQ(bytesOf(description()), model.description()) << round;
        EXPECT_EQ(session.dbVersion, u"1.1.0"_s);
    }
}

TEST_F(RandomDatabases, AWalkOfDesignsAndEditsLeavesWhatTheModelTells)
{
    Model model;
    model.forgetUnusedFields(0);
    designSession(model); // writes the description
    while (steps < 500 && !HasFailure()) {
        switch (roll(4)) {
        case 0:
            editSomeCard(model);
            break;
        case 1: // close and reopen
            openChosenFolder(session.dbPath);
            model.forgetUnusedFields(model.numFields);
            ++steps;
            break;
        default:
            designSession(model);
        }
        expectFolder(model);
    }
}

/// Up to five changes in the design dialog, then OK or Cancel.
void RandomDatabases::designSession(Model& model)
{
    const bool ok = roll(2) == 0;
    model.readOnlyTick = model.status == "RO";
    recorded.dialogSteps.push_back([&](QDialog& dialog) {
        for (int changes = roll(6); changes > 0; --changes)
            designStep(dynamic_cast<DesignForm&>(dialog), model);
        dialog.findChild<QPushButton*>(ok ? u"ok_but"_s : u"cancel_but"_s)->click();
        QCoreApplication::processEvents();
    });
    designCommand();
    if (ok)
        model.status = model.readOnlyTick ? "RO" : "RW";
    ++steps;
}

void RandomDatabases::designStep(DesignForm& dialog, Model& model)
{
    ++steps;
    const int kind = roll(5);
    if (kind == 0) {
        dialog.spinUp->click();
        model.numFields = std::min(model.numFields + 1, 12);
    } else if (kind == 1) {
        dialog.spinDown->click();
        model.numFields = std::max(model.numFields - 1, 1);
    } else if (kind == 2) {
        model.size = roll(3);
        dialog.cardSizeRadio[model.size]->click();
    } else if (kind == 3) {
        dialog.ChkRD->click();
        model.readOnlyTick = !model.readOnlyTick;
    } else {
        editSomeField(dialog, model);
    }
    EXPECT_EQ(dialog.numFieldsBox->text().toInt(), model.numFields);
}

void RandomDatabases::editSomeField(DesignForm& dialog, Model& model)
{
    const int f = 1 + roll(model.numFields);
    const Field wanted = anyField(codePageLetters);
    const bool ok = roll(3) > 0;
    recorded.dialogSteps.push_front([&](QDialog& opened) {
        auto& field = dynamic_cast<FieldForm&>(opened);
        EXPECT_EQ(field.fieldNameBox->text(), model.fields[f].name);
        EXPECT_EQ(field.UseList->isChecked(), model.fields[f].useList);
        field.fieldNameBox->setText(wanted.name);
        field.fieldType->setCurrentIndex(wanted.type == "Abc"_L1 ? 0 : 1);
        field.UseList->setChecked(wanted.useList);
        for (int item = 1; item <= 12; ++item)
            field.possAnswer[item]->setText(wanted.answers[item]);
        field.findChild<QPushButton*>(ok ? u"ok_but"_s : u"cancel_but"_s)->click();
    });
    dialog.EditFieldBut[f]->click();
    QCoreApplication::processEvents();
    if (ok)
        model.fields[f] = wanted;
}

/// Adds a card or opens one in its editor, fills some boxes, and leaves by OK or Cancel.
void RandomDatabases::editSomeCard(Model& model)
{
    ++steps;
    loadAllCards(); // like a tick of the refresh, with the present fields
    const bool adds = session.numCards == 0 || (session.numCards < 12 && roll(3) == 0);
    const bool ok = roll(3) > 0;
    for (int i = 0; i < 10; ++i) // random numbers for a new card's name and place
        recorded.randoms.push_back(roll(1000) / 1000.0);
    QString id;
    QStringList values;
    recorded.dialogSteps.push_back([&](QDialog& dialog) {
        auto& editor = dynamic_cast<editCard&>(dialog);
        id = session.cardId[session.selectedCard];
        values = model.shownBy(id);
        for (int f = 1; f <= model.numFields; ++f) {
            EXPECT_EQ(editor.DataBox[f]->text(), values[f - 1]) << "field " << f << " in step " << steps;
            if (roll(2) == 0)
                continue;
            const QString text = anyText(codePageLetters).remove(u'\t'); // tabs are too wide for a box
            editor.DataBox[f]->setText(text);
            values[f - 1] = model.fields[f].taking(text);
        }
        dialog.findChild<QPushButton*>(ok ? u"ok_but"_s : u"cancel_but"_s)->click();
    });
    adds ? addCard() : openCardEditor(1 + roll(session.numCards));
    QCoreApplication::processEvents();
    if (ok)
        model.records[id] = values;
}

void RandomDatabases::expectFolder(const Model& model)
{
    EXPECT_EQ(QString::fromLatin1(bytesOf(description())), QString::fromLatin1(model.description()))
        << "after step " << steps;
    const auto found = QDir(session.dbPath).entryList({u"*.tcd"_s}, QDir::Files);
    EXPECT_EQ(size_t(found.size()), model.records.size());
    for (const auto& [id, values] : model.records) {
        const QByteArray record = bytesOf(session.dbPath + u'/' + id + u".tcd"_s);
        QByteArray expected;
        for (const QString& value : values)
            expected += quoted(value);
        EXPECT_EQ(QString::fromLatin1(record.mid(record.indexOf('\n') + 1)), QString::fromLatin1(expected))
            << id.toStdString() << " after step " << steps;
    }
}
