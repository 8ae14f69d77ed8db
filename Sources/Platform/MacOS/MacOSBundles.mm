#include "Platform/MacOS/MacOSBundles.h"

#import <AppKit/AppKit.h>

namespace Platform {

namespace {

std::optional<QString> textOrNothing(NSString* _Nullable text) {
    if (text == nil)
        return std::nullopt;
    return QString::fromNSString(text);
}

} // namespace

std::optional<QString> MacOSBundles::identifier(const QString& path) {
    // Foundation raises an exception for an empty path.
    if (path.isEmpty())
        return std::nullopt;
    @autoreleasepool {
        NSURL* url = [NSURL fileURLWithPath:path.toNSString() isDirectory:YES];
        NSBundle* bundle = [[NSBundle alloc] initWithURL:url];
        return textOrNothing(bundle.bundleIdentifier);
    }
}

QString MacOSBundles::displayName(const QString& path) {
    @autoreleasepool {
        NSString* name = [NSFileManager.defaultManager displayNameAtPath:path.toNSString()];
        return QString::fromNSString(name);
    }
}

std::optional<QString> MacOSBundles::path(const QString& identifier) {
    @autoreleasepool {
        NSURL* url = [NSWorkspace.sharedWorkspace URLForApplicationWithBundleIdentifier:identifier.toNSString()];
        return textOrNothing(url.path);
    }
}

} // namespace Platform
