#pragma once

#include <QJsonObject>
#include <QStringList>
#include <QVector>

namespace service {

/// A spot in a document, for messages such as `stock/260.json / bands[2].FieldName: ...`, and the list that
/// faults found there go to.
class DocumentPlace
{
public:
    DocumentPlace(const QString &file, QStringList *faults)
        : m_file(file)
        , m_faults(faults)
    {}

    /// The spot of a member or of an element of this one.
    DocumentPlace member(const QString &key) const;
    DocumentPlace element(int index) const;

    void fault(const QString &text) const;

    /// "expected X, found Y" for a value of the wrong type.
    void wrongType(const QString &expected, const QJsonValue &found) const;

private:
    QString m_file;
    QString m_path;
    QStringList *m_faults;
};

/// The type of a member of a document.
enum class MemberType { Text, Whole, Number, Flag, Object, Array, Any };

/// One key that an object of a document may have.
struct MemberRule
{
    const char *key;
    MemberType type = MemberType::Text;
    bool required = false;
    QJsonValue fallback = QJsonValue::Undefined; ///< value when the key is absent; Undefined leaves it out
};

using MemberRules = QVector<MemberRule>;

/// \a object without its comments, checked against \a rules, with the fallbacks filled in. A member of
/// a wrong type or an unknown key is a fault and is left out.
QJsonObject checkedObject(const QJsonObject &object, const MemberRules &rules, const DocumentPlace &place);

/// As above for any value; a value that is no object is a fault.
QJsonObject checkedObject(const QJsonValue &value, const MemberRules &rules, const DocumentPlace &place);

/// Whether a key begins a comment.
bool isComment(const QString &key);

} // namespace service
