#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

// A property list (XML or binary) read from a file, for looking up values by key. A plain
// value: copies share the parsed tree, which is never modified, so reading from several
// threads is safe.
class PropertyList {
public:
    // Absent when the file cannot be read, is larger than a property list can sensibly be,
    // or is not a property list.
    [[nodiscard]] static std::optional<PropertyList> read(const QString& path);
    // The same from bytes already in memory (a tool's output).
    [[nodiscard]] static std::optional<PropertyList> parse(const QByteArray& data);

    // The text under `keyPath` (nested dictionary keys, outermost first); absent when a key
    // is missing or the value is not a string.
    [[nodiscard]] std::optional<QString> string(const QStringList& keyPath) const;
    [[nodiscard]] std::optional<QString> string(const QString& key) const { return string(QStringList{key}); }
    // The texts of the top-level array under `key`, skipping elements that are not texts; empty
    // when the key is missing or holds no array.
    [[nodiscard]] QStringList strings(const QString& key) const;

    // The whole number under `keyPath`; absent when missing or not an integer.
    [[nodiscard]] std::optional<qint64> integer(const QStringList& keyPath) const;
    [[nodiscard]] std::optional<qint64> integer(const QString& key) const { return integer(QStringList{key}); }
    // The date under `keyPath`; absent when missing or not a date.
    [[nodiscard]] std::optional<QDateTime> date(const QStringList& keyPath) const;
    [[nodiscard]] std::optional<QDateTime> date(const QString& key) const { return date(QStringList{key}); }

    // Reads the file and one top-level string in one step.
    [[nodiscard]] static std::optional<QString> string(const QString& path, const QString& key);

private:
    explicit PropertyList(std::shared_ptr<void> root) : m_root(std::move(root)) {}

    // The node under `keyPath`, or null.
    [[nodiscard]] void* node(const QStringList& keyPath) const;

    std::shared_ptr<void> m_root;  // a plist_t, freed with plist_free
};
