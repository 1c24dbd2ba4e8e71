// The game's files come in one archive: tar, compressed with gzip.

const blockSize = 512; // bytes; headers and files start at multiples of it

function textOf(bytes) {
    const end = bytes.indexOf(0);
    return new TextDecoder().decode(end < 0 ? bytes : bytes.subarray(0, end));
}

// Some servers say that the archive is a compressed file, and the browser unpacks it by itself.
async function decompress(bytes) {
    if (bytes[0] !== 0x1f || bytes[1] !== 0x8b) return bytes;
    const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream('gzip'));
    return new Uint8Array(await new Response(stream).arrayBuffer());
}

// Returns the files in the archive: [{name, bytes}]. The name of a folder ends with "/".
export async function unpack(archive) {
    const bytes = await decompress(archive);
    const files = [];
    for (let at = 0; at + blockSize <= bytes.length && bytes[at] !== 0;) {
        const name = textOf(bytes.subarray(at, at + 100));
        const size = parseInt(textOf(bytes.subarray(at + 124, at + 136)), 8);
        files.push({name, bytes: bytes.subarray(at + blockSize, at + blockSize + size)});
        at += blockSize * (1 + Math.ceil(size / blockSize));
    }
    return files;
}
