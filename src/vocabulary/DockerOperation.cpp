#include "vocabulary/DockerOperation.h"

size_t qHash(const DockerOperation& operation, size_t seed)
{
    HashCombine hash(seed);
    hash.add(operation.value.index()).add(operation.host).add(operation.scannedAt);
    if (auto c = operation.as<DockerOperation::Container>())
        hash.add(c->id);
    else if (auto i = operation.as<DockerOperation::Image>())
        hash.add(i->id).add(i->stoppedContainers).add(i->references);
    else if (auto v = operation.as<DockerOperation::Volume>())
        hash.add(v->name).add(v->created);
    return hash.result();
}
