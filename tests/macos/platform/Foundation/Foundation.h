#pragma once

#include <Foundation/NSCollections.h>
#include <Foundation/NSKeyValueObserving.h>
#include <Foundation/NSNotification.h>
#include <Foundation/NSUserDefaults.h>
#include <Foundation/NSValues.h>
#include <dispatch/dispatch.h>
