#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

// One row template of the known-locations table: where to look below the home folder and how
// to title what is found there. Plain value.
struct Location {
    // How a row found at a path is titled (name = the path's last component).
    struct Naming {
        struct Fixed {  // the given, already localised title
            QString title;
            bool operator==(const Fixed&) const = default;
        };
        struct Name {  // the prefix followed by the name
            QString prefix;
            bool operator==(const Name&) const = default;
        };
        struct ParentAndName {  // "parent · name"
            bool operator==(const ParentAndName&) const = default;
        };
        struct AppName {  // the display name of the app owning the folder
            bool operator==(const AppName&) const = default;
        };
        struct DerivedData {  // the name without Xcode's trailing hash
            bool operator==(const DerivedData&) const = default;
        };
        struct Archive {  // the name without its extension
            bool operator==(const Archive&) const = default;
        };
        struct SystemImage {  // "Android 34 · google_apis · arm64-v8a"
            bool operator==(const SystemImage&) const = default;
        };
        struct HuggingFace {  // "owner/model" from "models--owner--model"
            bool operator==(const HuggingFace&) const = default;
        };

        std::variant<Fixed, Name, ParentAndName, AppName, DerivedData, Archive, SystemImage, HuggingFace> value;

        static Naming fixed(QString title) { return {Fixed{std::move(title)}}; }
        static Naming name(QString prefix = {}) { return {Name{std::move(prefix)}}; }
        static Naming parentAndName() { return {ParentAndName{}}; }
        static Naming appName() { return {AppName{}}; }
        static Naming derivedData() { return {DerivedData{}}; }
        static Naming archive() { return {Archive{}}; }
        static Naming systemImage() { return {SystemImage{}}; }
        static Naming huggingFace() { return {HuggingFace{}}; }

        template <typename T>
        const T* as() const { return std::get_if<T>(&value); }

        bool operator==(const Naming&) const = default;
    };

    QStringList paths;  // patterns relative to the home folder; "*" matches within one component
    Naming naming = Naming::name();
    bool perChild = false;  // every entry of each match is a row of its own
    std::optional<QString> detail;  // used when the naming gives none
    // Entries of a per-child folder that another row or another category owns, so they are
    // never listed twice.
    QStringList skippedChildren;

    bool operator==(const Location&) const = default;
};
