#pragma once

#include "model/propertylist/PropertyList.h"

namespace velvane {

/// The objects of a binary property list by their numbers, each for itself: whoever asks follows
/// the references between them. All checks against the file's size are made here; what does not
/// fit throws DocumentError.
class BinaryObjects {
public:
    /// One object: where it starts, where its content does, and the halves of its first byte.
    struct Object {
        quint64 number;
        qsizetype start;
        qsizetype content;
        quint8 type;
        quint8 info;
    };

    /// Reads and checks the trailer. The bytes must outlive this.
    explicit BinaryObjects(const QByteArray &bytes);

    quint64 count() const { return m_count; }
    quint64 top() const { return m_top; }
    /// Bytes of all objects together, if none lie upon each other.
    qsizetype size() const { return m_end; }
    qsizetype referenceSize() const { return m_referenceSize; }

    Object object(quint64 number) const;
    /// How many items of this size a text, data, array or dictionary has; they all lie in the
    /// file. Moves the object's content behind the count.
    qsizetype takeCount(Object &object, qsizetype itemSize) const;
    /// The number of the object that an array or dictionary refers to; takeCount() came before.
    quint64 reference(const Object &object, qsizetype index) const;

    PropertyList constant(const Object &object) const;
    PropertyList integer(const Object &object) const;
    PropertyList real(const Object &object) const;
    PropertyList date(const Object &object) const;
    PropertyList uid(const Object &object) const;
    PropertyList data(const Object &object, qsizetype count) const;
    PropertyList asciiText(const Object &object, qsizetype count) const;
    PropertyList utf16Text(const Object &object, qsizetype count) const;

    [[noreturn]] static void fail(const QString &what);
    [[noreturn]] static void fail(const Object &object, const char *what);

private:
    void require(const Object &object, quint64 size) const;
    quint64 bigEndian(qsizetype at, int size) const;

    const QByteArray &m_bytes;
    int m_offsetSize = 0;
    int m_referenceSize = 0;
    quint64 m_count = 0;
    quint64 m_top = 0;
    // Where the objects end and the table of their offsets starts.
    qsizetype m_end = 0;
};

} // namespace velvane
