#include "Platform/MacOS/MacOSFolders.h"

#import <Foundation/Foundation.h>

namespace Platform {

QString MacOSFolders::home() {
    @autoreleasepool {
        return QString::fromNSString(NSFileManager.defaultManager.homeDirectoryForCurrentUser.path);
    }
}

QString MacOSFolders::applicationSupport() {
    @autoreleasepool {
        NSArray<NSURL*>* folders = [NSFileManager.defaultManager URLsForDirectory:NSApplicationSupportDirectory
                                                                        inDomains:NSUserDomainMask];
        return QString::fromNSString(folders.firstObject.path);
    }
}

QStringList MacOSFolders::entries(const QString& folder) {
    QStringList result;
    // Foundation raises an exception for an empty path.
    if (folder.isEmpty())
        return result;
    @autoreleasepool {
        NSURL* url = [NSURL fileURLWithPath:folder.toNSString() isDirectory:YES];
        NSArray<NSURL*>* found =
            [NSFileManager.defaultManager contentsOfDirectoryAtURL:url
                                        includingPropertiesForKeys:@[]
                                                           options:NSDirectoryEnumerationSkipsHiddenFiles
                                                             error:nil];
        for (NSURL* entry in found)
            result.append(QString::fromNSString(entry.path));
    }
    return result;
}

} // namespace Platform
