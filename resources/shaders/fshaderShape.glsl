#version 130
#ifdef GL_ES
precision mediump int;
precision mediump float;
#endif

// "texture" names the sampler and so hides the function of that name.
uniform sampler2D texture;
uniform float brightness;
uniform vec4 color_highlight;
uniform int look; // 0: textured, 1: lit, 2: normals
uniform float alpha_from;
uniform float alpha_below;
uniform vec3 eye;

in vec2 v_texcoord;
in vec3 v_normal;
in vec3 v_place;
in vec4 v_color;

out vec4 outColor;

const float Shade = 0.3; // what the light does not reach

void main()
{
    // Clockwise triangles are seen from their front, and the back has the normal of the other side.
    float side = gl_FrontFacing ? 1.0 : -1.0;
    // Of the triangle; as it is drawn, it looks at the eye.
    vec3 flatNormal = side * cross(dFdx(v_place), dFdy(v_place));
    vec4 c = texture2D(texture, v_texcoord);
    if (c.a < alpha_from || c.a >= alpha_below)
        discard;
    c.rgb = mix(c.rgb, v_color.rgb, v_color.a);

    float size = dot(v_normal, v_normal);
    // Not so for what is no number, either.
    bool isUsable = size > 1e-6 && size < 1e12;
    vec3 normal = normalize(isUsable ? v_normal : flatNormal);
    if (look == 0) {
        c.rgb = (c.rgb + color_highlight.rgb) * brightness;
    } else if (look == 1) {
        float facing = max(dot(side * normal, normalize(eye - v_place)), 0.0);
        c.rgb *= mix(Shade, 1.0, facing);
        c.rgb = (c.rgb + color_highlight.rgb) * brightness;
    } else {
        c.rgb = 0.5 * normal + 0.5 + color_highlight.rgb;
    }
    outColor = c;
}
