// must be found: cannot initialize a variable of type 'BOOL *'
// only on: x86_64
#import <Foundation/Foundation.h>

void boolAsBOOL(bool& answer);
void boolAsBOOL(bool& answer) {
    BOOL* given = &answer;
    *given = YES;
}
